#include "tour/Story.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <stdexcept>
#include <utility>

#include "app/Files.h"
#include "driving/Controls.h"
#include "tour/Waiting.h"
#include "ui/base/QtText.h"

namespace tavrene::tour {
namespace {

using driving::Find;

constexpr const char* kProfile = "NewSurvey";
constexpr const char* kScan = "staff-01.tif";
constexpr const char* kBlank = "StaffSurvey.tif";

void Expect(bool isSo, const char* what) {
    if (!isSo)
        throw std::runtime_error(std::string("This is not so: ") + what + ".");
}

// Not from within the timer that has found the dialog: the next one may open at once.
void AcceptName(QDialog& files, const std::string& name) {
    Find<QLineEdit>(files, "fileNameEdit").setText(ui::ToQt(name));
    QTimer::singleShot(0, &files, [&files] { files.accept(); });
}

}  // namespace

void Story::Tell() {
    MakeProfile();
    TryProfile();
    JudgeDoubts();
    Decide();
    Export();
}

void Story::Trigger(const char* command) {
    Find<QAction>(window_, command).trigger();
    QApplication::processEvents();
}

void Story::Trigger(const char* command, std::deque<Act> acts) {
    QTimer timer;
    QPointer<QWidget> before;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog == before || acts.empty())
            return;
        before = dialog;
        const Act act = std::exchange(acts.front(), {});
        acts.pop_front();
        try {
            act(*dialog);
        } catch (...) {
            failure_ = std::current_exception();
            dialog->reject();
        }
    });
    timer.start(kLookAgain);
    Trigger(command);
    if (failure_)
        std::rethrow_exception(std::exchange(failure_, {}));
    Expect(acts.empty(), "every dialog has opened");
}

void Story::MakeProfile() {
    Trigger("New", {[](QDialog& dialog) { AcceptName(dialog, kProfile); },
                    [this](QDialog& dialog) {
                        dynamic_cast<QFileDialog&>(dialog).selectFile(kBlank);
                        QApplication::processEvents(QEventLoop::AllEvents, kLookAgain);
                        shoot_(dialog, "12-blank-form");
                        AcceptName(dialog, folders_.ProfileImages + kBlank);
                    }});
    auto& boxes = Find<QTreeWidget>(window_, "lvwSettings");
    Expect(boxes.topLevelItemCount() > 0, "the blank form has boxes");
    Trigger("FitPage");
    Trigger("SelectAllBoxes");
    Trigger("NameBoxes", {[this](QDialog& dialog) {
                shoot_(dialog, "13-name-boxes");
                Find<QPushButton>(dialog, "cmdOK").click();
            }});
    Expect(boxes.topLevelItem(0)->text(0) == "Q1 1", "boxes have the names of the pattern");
    Trigger("GroupByRows");
    shoot_(window_, "14-groups");
    Trigger("GroupFrames");
    Trigger("BoxNames");
    shoot_(window_, "15-names");
    Trigger("BoxNames");
    Trigger("Save");
}

void Story::TryProfile() {
    Trigger("TestProfile", {[this](QDialog& dialog) {
                auto& scans = Find<QListWidget>(dialog, "lvwScans");
                scans.setCurrentItem(scans.findItems(kScan, Qt::MatchExactly).value(0));
                shoot_(dialog, "16-test-profile");
                dialog.reject();
            }});
}

void Story::JudgeDoubts() {
    Trigger("Review");
    Trigger("DoubtSheet", {[this](QDialog& dialog) {
                WaitUntil([&] { return Find<QLabel>(dialog, "lblSheetLeft").text().isEmpty(); },
                          "all forms are looked at");
                shoot_(dialog, "17-sheet-of-doubts");
                dialog.reject();
            }});
    auto& tabs = Find<QTabWidget>(window_, "tabReview");
    tabs.setCurrentIndex(1);
    QApplication::processEvents();
    shoot_(window_, "18-not-read");
    tabs.setCurrentIndex(0);
}

void Story::Decide() {
    auto& forms = Find<QTreeView>(window_, "lvwReview");
    forms.setCurrentIndex(forms.model()->index(0, 0));
    Trigger("OpenForm");
    Trigger("FitWidth");
    Trigger("AcceptForm");
    Trigger("RejectForm");
    shoot_(window_, "19-decided");
    const app::DiskFiles files;
    Expect(files.List(folders_.ProcessFinal, "*.xml").size() == 1, "one form is accepted");
    Expect(files.List(folders_.ProcessReject, "*.xml").size() == 1, "the one that opened then is rejected");
}

void Story::Export() {
    const std::string workbook = folders_.ProcessFinal + "results.xlsx";
    Trigger("ExportResults", {[this](QDialog& dialog) {
                                  shoot_(dialog, "20-export");
                                  Find<QPushButton>(dialog, "cmdExport").click();
                              },
                              [&workbook](QDialog& dialog) { AcceptName(dialog, workbook); }});
    const app::DiskFiles files;
    WaitUntil([&] { return files.FileExists(workbook); }, "the workbook is written");
    shoot_(window_, "21-exported");
}

}  // namespace tavrene::tour
