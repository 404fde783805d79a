#pragma once

#include "support/FakeFileDialogs.h"
#include "ui/FormWindow.h"
#include "ui/exporting/CountsDialog.h"
#include "ui/settings/SettingsDialog.h"
#include "ui/shell/HelpWindow.h"

namespace tavrene::test {

/// Goes through the window's states and all of its dialogs, each opened by its command.
class DialogWalk : public FormWindow {
  protected:
    using Look = std::function<void(QWidget& window, const char* where)>;

    DialogWalk() { AddSpecimenProfile("Form", form_); }

    void LookAtAll(const Look& look) {
        form_.SaveScan(folders_.ProcessIn + "scan.tif", {.checked = {2}});
        WriteText(folders_.ProcessIn + "torn.png", "no image");
        Open();
        look(*window_, "start");
        for (const char* const command :
             {"New", "Settings", "About", "BringIn", "BringInFolder", "Scan", "ExportResults"})
            LookAtDialog(command, look);
        LookAtOthers(look);
        ClickThumbnail(1);
        look(*window_, "profile");
        Trigger("SelectAllBoxes");
        for (const char* const command :
             {"NameBoxes", "GroupBoxes", "TestProfile", "DuplicateProfile", "RenameProfile"})
            LookAtDialog(command, look);
        LookAtDialog(look, "DrawGrid", [this] {
            Trigger("DrawGrid");
            const QRectF first = PlaceOf(form_.boxes[0]).translated(2, 60);
            Drag(first.topLeft(), first.bottomRight());
            Drag(first.topLeft() + QPointF(80, 60), first.bottomRight() + QPointF(80, 60));
        });
        Click("Process");
        EXPECT_PRED2(Has, ui::FromQt(Find<QLabel>(*window_, "lblSummary").text()), "1");
        look(*window_, "run");
        Click("Review");
        Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
        look(*window_, "review");
        LookAtDialog("DoubtSheet", look);
        window_.reset();
    }

  private:
    void LookAtDialog(const char* command, const Look& look) {
        LookAtDialog(look, command, [this, command] { Trigger(command); });
    }

    static void LookAtDialog(const Look& look, const char* where, const std::function<void()>& open) {
        DialogScript script;
        script.Do([&look, where](QDialog& dialog) {
            look(dialog, where);
            dialog.reject();
        });
        open();
    }

    // Those that another dialog or another start of the program opens, and the one that is none.
    void LookAtOthers(const Look& look) {
        FakeFileDialogs dialogs;
        ui::CountsDialog counts("<p>1</p>", {files_, dialogs, ""}, nullptr);
        look(counts, "counts");
        app::Settings none;
        ui::SettingsDialog first(none, store_, files_, nullptr);
        look(first, "first start");
        ui::HelpWindow manual(nullptr);
        look(manual, "manual");
    }
};

}  // namespace tavrene::test
