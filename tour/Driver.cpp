#include "tour/Driver.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QListView>
#include <QMessageBox>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <stdexcept>

#include "driving/Controls.h"
#include "tour/Story.h"
#include "tour/Waiting.h"
#include "ui/reviewing/ReviewTable.h"

namespace tavrene::tour {
namespace {

using driving::Find;

constexpr int kWidth = 1280;
constexpr int kHeight = 860;

// The picture during the run is taken after this many files, at the first page with this many checked boxes.
constexpr int kFilesBeforeShot = 5;
constexpr int kCheckedInShot = 8;

// The box that is selected for the picture of the profile desk, counted from 0.
constexpr int kBoxInShot = 6;

// The forms that are looked at in review: one with corrected marks, and one that the plain reading reads
// nothing of.
constexpr const char* kFormInShot = "patient-12-corrected";
constexpr const char* kUpsideDown = "patient-15-upside-down";

// The row of its mark that was scribbled over, counted from the end.
constexpr int kRowInShotFromEnd = 4;

void ClickOn(QWidget& widget, const QPointF& point) {
    const QPointF onScreen = widget.mapToGlobal(point);
    QMouseEvent press(QEvent::MouseButtonPress, point, onScreen, Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, point, onScreen, Qt::LeftButton, {}, {});
    QApplication::sendEvent(&widget, &release);
    QApplication::processEvents();
}

int CountChecked(const QTreeWidget& boxes) {
    int checked = 0;
    for (int row = 0; row < boxes.topLevelItemCount(); ++row)
        checked += boxes.topLevelItem(row)->text(1) == "1" ? 1 : 0;
    return checked;
}

}  // namespace

Driver::Driver(ui::MainWindow& window, const QString& shotsFolder)
    : window_(window), shotsFolder_(shotsFolder) {
    QDir().mkpath(shotsFolder_);
}

void Driver::Drive() {
    window_.resize(QSize(kWidth, kHeight).boundedTo(window_.screen()->availableSize()));
    QApplication::processEvents();
    ShootWindow("1-before-the-run");
    // The run lets pending events in once a file; that is when the timer strikes.
    const int clock = startTimer(0);
    Press("Process");
    killTimer(clock);
    ShootWindow("3-after-the-run");
    Press("FitPage");
    ShootWindow("4-whole-page");
    auto& files = Find<QTreeWidget>(window_, "SummaryFiles");
    ClickOn(*files.viewport(), files.visualItemRect(files.topLevelItem(0)).center());
    ShootWindow("5-file-of-the-summary");
    CloseSummary();
    ShootProfileDesk();
    ShootReview();
    ShootSettingsDialog();
}

void Driver::ReadPrecisely() {
    auto& precise = Find<QAction>(window_, "PreciseAlignment");
    precise.trigger();
    Press("Process");
    CloseSummary();
    Press("Review");
    OpenForm(kUpsideDown);
    Press("FitPage");
    ShootWindow("10-upside-down-form");
    precise.trigger();
    Press("Review");
    Find<QAction>(window_, "Manual").trigger();
    QApplication::processEvents();
    auto& manual = Find<QDialog>(window_, "frmManual");
    Shoot(manual, "11-manual");
    manual.close();
}

void Driver::TellStory(const app::WorkingFolders& folders) {
    Story(window_, folders, [this](QWidget& widget, const QString& name) { Shoot(widget, name); }).Tell();
    window_.close();
}

void Driver::timerEvent(QTimerEvent*) {
    if (shotDuringRun_ || Find<QProgressBar>(window_, "ProgressBar1").value() < kFilesBeforeShot ||
        CountChecked(Find<QTreeWidget>(window_, "lvwSettings")) < kCheckedInShot)
        return;
    shotDuringRun_ = true;
    ShootWindow("2-during-the-run");
}

void Driver::Press(const char* key) {
    driving::Button(window_, "MainToolbar", key).click();
    QApplication::processEvents();
}

void Driver::ShootProfileDesk() {
    auto& strip = Find<QListView>(window_, "ImgThumbnail1");
    const QModelIndex last = strip.model()->index(strip.model()->rowCount() - 1, 0);
    ClickOn(*strip.viewport(), strip.visualRect(last).center());
    Press("FitWidth");
    auto& boxes = Find<QTreeWidget>(window_, "lvwSettings");
    ClickOn(*boxes.viewport(), boxes.visualItemRect(boxes.topLevelItem(kBoxInShot)).center());
    ShootWindow("6-profile-editor");
}

void Driver::ShootReview() {
    Press("Review");
    OpenForm(kFormInShot);
    Press("FitWidth");
    WaitForDoubts();
    auto& boxes = Find<QTreeWidget>(window_, "lvwSettings");
    boxes.setCurrentItem(boxes.topLevelItem(boxes.topLevelItemCount() - kRowInShotFromEnd));
    Find<QAction>(window_, "FlipBox").trigger();
    QApplication::processEvents();
    ShootWindow("7-review");
    ShootNextDialog("8-unsaved-marks", [](QDialog& question) {
        dynamic_cast<QMessageBox&>(question).button(QMessageBox::No)->click();
    });
    Press("Review");
}

// They are counted while nothing else is done.
void Driver::WaitForDoubts() {
    const QAbstractItemModel& forms = *Find<QTreeView>(window_, "lvwReview").model();
    const auto isCounted = [&forms] {
        for (int row = 0; row < forms.rowCount(); ++row)
            if (forms.index(row, ui::ReviewTable::kDoubts).data().toString().isEmpty())
                return false;
        return true;
    };
    WaitUntil(isCounted, "the doubts of all forms are counted");
}

void Driver::CloseSummary() {
    Find<QToolButton>(window_, "cmdCloseSummary").click();
}

void Driver::OpenForm(const QString& name) {
    auto& forms = Find<QTreeView>(window_, "lvwReview");
    const QModelIndexList lines = forms.model()->match(forms.model()->index(0, 0), Qt::DisplayRole, name);
    if (lines.isEmpty())
        throw std::runtime_error("Review lists no form " + name.toStdString() + ".");
    ClickOn(*forms.viewport(), forms.visualRect(lines.front()).center());
}

void Driver::ShootSettingsDialog() {
    ShootNextDialog("9-settings", [](QDialog& dialog) { dialog.reject(); });
    Find<QAction>(window_, "Settings").trigger();
}

void Driver::ShootNextDialog(const QString& name, void (*close)(QDialog& dialog)) {
    // The dialog is modal: it can be looked at only from its own event loop.
    QTimer::singleShot(0, this, [this, name, close] {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            Shoot(*dialog, name);
            close(*dialog);
        }
    });
}

void Driver::ShootWindow(const QString& name) {
    Shoot(window_, name);
}

void Driver::Shoot(QWidget& widget, const QString& name) {
    const QString path = QDir(shotsFolder_).filePath(name + ".png");
    if (!widget.grab().save(path))
        throw std::runtime_error("The picture " + path.toStdString() + " cannot be written.");
    shots_.append(path);
}

}  // namespace tavrene::tour
