#include <gtest/gtest.h>

#include <QDir>
#include <QInputDialog>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include "app/WorkingFolders.h"
#include "support/Faults.h"
#include "support/FaultyFiles.h"
#include "support/MemoryStore.h"
#include "support/TempFolder.h"
#include "ui/Controls.h"
#include "ui/DialogScript.h"
#include "ui/settings/SettingsDialog.h"

namespace tavrene::ui {
namespace {

using test::Find;
using Values = std::map<std::string, std::string>;

class SettingsDialogTest : public testing::Test {
  protected:
    SettingsDialogTest() {
        store_.values = {{"BoxMinWidth", "16"},  {"BoxMaxWidth", "38"},  {"BoxMinHeight", "16"},
                         {"BoxMaxHeight", "34"}, {"FillThreshold", "8"}, {"WorkDir", work_.Path()}};
        settings_.WorkDir = work_.Path();
    }

    SettingsDialog& Open() {
        dialog_ = std::make_unique<SettingsDialog>(settings_, store_, files_, nullptr);
        dialog_->show();
        return *dialog_;
    }
    void Move(const char* bar, int position) { Find<QScrollBar>(*dialog_, bar).setValue(position); }
    int Position(const char* bar) { return Find<QScrollBar>(*dialog_, bar).value(); }
    QString Text(const char* label) { return Find<QLabel>(*dialog_, label).text(); }
    QLineEdit& Path() { return Find<QLineEdit>(*dialog_, "txtFolder"); }
    void Click(const char* button) { Find<QPushButton>(*dialog_, button).click(); }

    // Makes a row of the folder list the current folder by the Enter key, which must not press Save as well.
    void Enter(const QString& folder) {
        auto& list = Find<QListWidget>(*dialog_, "Dir1");
        for (int row = 0; row < list.count(); ++row) {
            if (list.item(row)->data(Qt::UserRole).toString() != folder)
                continue;
            list.setCurrentRow(row);
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(&list, &press);
            EXPECT_TRUE(dialog_->isVisible());
            return;
        }
        FAIL() << "no row for " << FromQt(folder);
    }

    test::TempFolder work_;
    test::MemoryStore store_;
    test::FaultyFiles files_;
    app::Settings settings_;
    std::unique_ptr<SettingsDialog> dialog_;
};

// Bars of the least and the most push each other's ends; the numbers beside them follow and obey likewise.
TEST_F(SettingsDialogTest, BarsAndNumbersHoldEachOtherAndTheLabelFollows) {
    Open();
    const auto typed = [this](const char* field, int number) {
        auto& box = Find<QSpinBox>(*dialog_, field);
        box.setValue(number);
        return box.value();
    };
    EXPECT_EQ(Text("lblSize"), "(16,16) - (38,34)");
    Move("HScroll1", 50);
    EXPECT_EQ(Position("HScroll1"), 38);
    const struct {
        std::vector<std::pair<const char*, int>> moves;
        const char* label;
    } steps[] = {{{{"VScroll1", 10}}, "(38,34) - (38,34)"},
                 {{{"HScroll1", 12}, {"HScroll2", 10}, {"VScroll1", 50}}, "(12,10) - (12,34)"},
                 {{{"VScroll2", 50}}, "(12,10) - (12,10)"},
                 {{{"VScroll2", 10}, {"HScroll2", 50}}, "(12,10) - (50,40)"}};
    for (const auto& [moves, label] : steps) {
        for (const auto& [bar, position] : moves)
            Move(bar, position);
        EXPECT_EQ(Text("lblSize"), label);
    }
    EXPECT_EQ(Find<QSpinBox>(*dialog_, "numHScroll2").value(), 50);
    EXPECT_EQ(typed("numHScroll2", 38), 38);
    EXPECT_EQ(typed("numHScroll1", 45), 38) << "no wider than the widest";
    EXPECT_EQ(typed("numVScroll2", 47), 40) << "no bar for heights goes further";
    EXPECT_EQ(typed("numVScroll1", 12), 12);
    EXPECT_EQ(Position("VScroll1"), 38);
    EXPECT_EQ(Text("lblSize"), "(38,12) - (38,40)");
    typed("numHScroll3", 17);
    EXPECT_EQ(Position("HScroll3"), 17);
    Move("HScroll3", 23);
    EXPECT_EQ(Text("lblThreshold"), "23");
    EXPECT_EQ(Find<QSpinBox>(*dialog_, "numHScroll3").value(), 23);
}

// A laptop at twice the scale has room for little more than half of the dialog.
TEST_F(SettingsDialogTest, CanBeSavedOnASmallScreen) {
    Open().resize(660, 330);
    QApplication::processEvents();
    EXPECT_LE(dialog_->height(), 330);
    EXPECT_LE(dialog_->width(), 660);
    const auto& save = Find<QPushButton>(*dialog_, "cmdOK");
    EXPECT_TRUE(dialog_->rect().contains(save.geometry().translated(save.parentWidget()->pos())));
    auto& bar = Find<QScrollBar>(*dialog_, "HScroll3");
    EXPECT_TRUE(bar.visibleRegion().isEmpty());
    bar.setFocus(Qt::TabFocusReason);
    Find<QScrollArea>(*dialog_, "Frames").ensureWidgetVisible(&bar);
    EXPECT_EQ(bar.visibleRegion().boundingRect().height(), bar.height());
    const auto& frames = Find<QScrollArea>(*dialog_, "Frames");
    EXPECT_GT(frames.viewport()->width() - frames.widget()->childrenRect().right(), 5) << "free of the bar";
}

TEST_F(SettingsDialogTest, OpeningWithZerosStoresTheFirstPositions) {
    store_.values = {{"FillThreshold", "8"}, {"WorkDir", work_.Path()}};
    Open();
    EXPECT_EQ(Text("lblSize"), "(16,16) - (38,16)");
    EXPECT_EQ(store_.values["BoxMinHeight"] + " " + store_.values["BoxMaxHeight"], "34 16");
    EXPECT_EQ(store_.values["BoxMinWidth"] + " " + store_.values["BoxMaxWidth"], "16 38");
}

TEST_F(SettingsDialogTest, ResetPutsBackTheSizesAloneAndStoresNothing) {
    const Values before = store_.values;
    Open();
    for (const char* bar : {"HScroll1", "HScroll2", "VScroll1", "VScroll2"})
        Move(bar, 40);
    Move("HScroll3", 55);
    Find<QCheckBox>(*dialog_, "chkProcessSingle").setChecked(true);
    Click("cmdReset");
    EXPECT_EQ(Text("lblSize"), "(16,16) - (38,34)");
    EXPECT_EQ(Text("lblThreshold"), "55");
    EXPECT_TRUE(Find<QCheckBox>(*dialog_, "chkProcessSingle").isChecked());
    EXPECT_EQ(store_.values, before);
}

TEST_F(SettingsDialogTest, CancelWithoutAWorkingFolderKeepsTheFolderShown) {
    settings_.WorkDir.clear();
    store_.values.erase("WorkDir");
    Open();
    Move("HScroll1", 20);
    Click("cmdCancel");
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(settings_.WorkDir, FromQt(QDir::currentPath()));
    EXPECT_EQ(store_.values["WorkDir"], settings_.WorkDir);
    EXPECT_EQ(store_.values["BoxMinWidth"], "16");
}

TEST_F(SettingsDialogTest, SaveWritesEveryValueAndMakesTheFolders) {
    QDir(ToQt(work_.Path())).mkpath("nested/deep & <wide>");
    settings_.ProcessSingle = true;
    Open();
    Enter(ToQt(work_.Path()) + "/nested");
    const auto& rows = Find<QListWidget>(*dialog_, "Dir1");
    EXPECT_TRUE(rows.item(rows.count() - 1)->toolTip().endsWith("deep &amp; &lt;wide&gt;</span>"));
    Enter(ToQt(work_.Path()) + "/nested/deep & <wide>");
    Move("HScroll1", 20);
    Move("VScroll1", 28);
    Move("HScroll3", 11);
    Find<QCheckBox>(*dialog_, "chkDisplayDuringProcess").setChecked(true);
    Click("cmdOK");
    const std::string chosen = work_.Path() + "/nested/deep & <wide>";
    EXPECT_EQ(store_.values, (Values{{"BoxMinWidth", "20"},
                                     {"BoxMaxWidth", "38"},
                                     {"BoxMinHeight", "22"},
                                     {"BoxMaxHeight", "34"},
                                     {"FillThreshold", "11"},
                                     {"ProcessSingle", "1"},
                                     {"DisplayDuringProcess", "1"},
                                     {"WorkDir", chosen}}));
    EXPECT_EQ(settings_.BoxMinHeight, 22);
    EXPECT_TRUE(settings_.DisplayDuringProcess);
    EXPECT_TRUE(files_.FolderExists(chosen + "/ProcessIn"));
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(SettingsDialogTest, SaveWithAnUnusableFolderKeepsTheOldOne) {
    QDir(ToQt(work_.Path())).mkpath("readonly");
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "create"; };
    Open();
    Enter(ToQt(work_.Path()) + "/readonly");
    Move("HScroll3", 30);
    Click("cmdOK");
    EXPECT_FALSE(dialog_->isVisible());
    EXPECT_EQ(settings_.WorkDir, work_.Path());
    EXPECT_EQ(store_.values["WorkDir"], work_.Path());
    EXPECT_EQ(store_.values["FillThreshold"], "30");
}

TEST_F(SettingsDialogTest, AFolderThatIsGoneStaysUntilAnotherIsChosen) {
    const std::string gone = work_.Path() + "/gone/for good";
    settings_.WorkDir = gone;
    Open();
    EXPECT_EQ(Path().text(), ToQt(gone));
    EXPECT_TRUE(Find<QLabel>(*dialog_, "lblFolder").isVisible());
    Click("cmdOK");
    EXPECT_EQ(settings_.WorkDir, gone);
    EXPECT_EQ(store_.values["WorkDir"], gone);
    EXPECT_TRUE(QDir(ToQt(work_.Path())).isEmpty());

    Open();
    Enter(ToQt(work_.Path()));
    EXPECT_EQ(Path().text(), ToQt(work_.Path()));
    EXPECT_FALSE(Find<QLabel>(*dialog_, "lblFolder").isVisible());
    Click("cmdOK");
    EXPECT_EQ(settings_.WorkDir, work_.Path());
}

TEST_F(SettingsDialogTest, TheFolderIsTypedClickedOrMade) {
    QDir(ToQt(work_.Path())).mkpath("clicked");
    Open();
    auto& list = Find<QListWidget>(*dialog_, "Dir1");
    QListWidgetItem* const row = list.item(list.count() - 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(row).center());
    EXPECT_EQ(Path().text(), ToQt(work_.Path() + "/clicked"));
    QTimer::singleShot(0, dialog_.get(), [] {
        auto* const question = dynamic_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(question, nullptr);
        question->setTextValue("made");
        question->accept();
    });
    Click("cmdNewFolder");
    EXPECT_EQ(Path().text(), ToQt(work_.Path() + "/clicked/made"));
    for (const auto& [typed, folder] :
         {std::pair(QString("~/"), QDir::homePath()),
          {ToQt(work_.Path()) + "/clicked/", ToQt(work_.Path()) + "/clicked"}}) {
        Path().clear();
        QTest::keyClicks(&Path(), typed);
        QTest::keyClick(&Path(), Qt::Key_Return);
        EXPECT_EQ(Path().text(), folder);
        EXPECT_TRUE(dialog_->isVisible()) << "Enter ends the typing only";
    }
    Click("cmdOK");
    EXPECT_EQ(settings_.WorkDir, work_.Path() + "/clicked");
}

TEST_F(SettingsDialogTest, TheFirstStartWelcomesAndFillsAFolderWithTheSamples) {
    Open();
    EXPECT_EQ(dialog_->findChild<QLabel*>("lblWelcome"), nullptr);
    settings_.WorkDir.clear();
    store_.values.erase("WorkDir");
    Open();
    EXPECT_TRUE(Text("lblCancel").contains(QDir::currentPath()));
    QDir(ToQt(work_.Path())).mkpath("mine");
    for (const char* place : {"/mine", ""}) {
        test::DialogScript dialogs;
        dialogs.Type(work_.Path() + place);
        Click("cmdSamples");
    }
    Click("cmdOK");
    const app::WorkingFolders empty = app::PathsUnder(work_.Path() + "/mine");
    const app::WorkingFolders own = app::PathsUnder(work_.Path() + "/Tavrene Samples");
    EXPECT_EQ(settings_.WorkDir, work_.Path() + "/Tavrene Samples") << "the folder was not empty";
    for (const app::WorkingFolders& folders : {empty, own}) {
        EXPECT_GT(files_.List(folders.ProcessIn, "*.tif").size(), 10U);
        EXPECT_TRUE(test::Has(test::ReadText(folders.Profiles + "StaffSurvey.Tvp"),
                              "Image=\"" + folders.ProfileImages + "StaffSurvey.tif\""));
        EXPECT_TRUE(files_.FileExists(folders.ProfileImages + "StaffSurvey.tif"));
    }
}

TEST_F(SettingsDialogTest, TheThresholdThatIsShownIsInForce) {
    for (const auto& [stored, shown] : {std::pair{"150", 100}, {"-3", 1}, {"12", 12}, {"", 12}}) {
        store_.values["FillThreshold"] = stored;
        Open();
        EXPECT_EQ(Text("lblThreshold"), QString::number(shown));
        Click("cmdCancel");
        EXPECT_EQ(settings_.FillThreshold, shown) << stored;
    }
}

TEST_F(SettingsDialogTest, ArrowKeysMoveTheThumbTheirWay) {
    Open();
    const struct {
        const char* bar;
        int key;
        int by;
    } presses[] = {{"HScroll1", Qt::Key_Right, 1},
                   {"HScroll2", Qt::Key_Left, -1},
                   {"HScroll3", Qt::Key_Right, 1},
                   {"VScroll2", Qt::Key_Up, -1},  // taller
                   {"VScroll2", Qt::Key_Down, 1}};
    for (const auto& [bar, key, by] : presses) {
        const int before = Position(bar);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&Find<QScrollBar>(*dialog_, bar), &event);
        EXPECT_EQ(Position(bar), before + by) << bar;
    }
}

TEST_F(SettingsDialogTest, TheTabKeyGoesThroughTheFramesInTheirOrderAndEveryStopHasAName) {
    Open();
    std::string stops;
    const QWidget* const first = &Find<QWidget>(*dialog_, "Drive1");
    const QWidget* stop = first;
    do {
        const bool box = qobject_cast<const QAbstractButton*>(stop) != nullptr;
        const bool own = stop->focusProxy() == nullptr;
        if (own && (stop->focusPolicy() & Qt::TabFocus) != 0 && stop->isVisible()) {
            stops += " " + FromQt(stop->objectName());
            EXPECT_TRUE(box || !stop->accessibleName().isEmpty()) << stops;
        }
        stop = stop->nextInFocusChain();
    } while (stop != first);
    EXPECT_EQ(
        stops,
        " Drive1 Dir1 cmdBrowse cmdNewFolder VScroll1 HScroll1 numHScroll1 numVScroll1 VScroll2 HScroll2"
        " numHScroll2 numVScroll2 cmdReset chkDisplayDuringProcess chkProcessSingle HScroll3"
        " numHScroll3 cmdOK cmdCancel txtFolder");
}

}  // namespace
}  // namespace tavrene::ui
