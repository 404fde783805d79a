#include "tour/walk/Walker.h"

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <exception>
#include <stdexcept>

#include "driving/Controls.h"
#include "ui/base/QtText.h"
#include "ui/reviewing/ReviewTable.h"
#include "ui/reviewing/SheetView.h"

namespace tavrene::tour {

void Walker::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* const dialog = QApplication::activeModalWidget();
    QWidget* const top = dialog != nullptr ? dialog : &window_;
    top->activateWindow();
    // To QTest a dialog is active as soon as the window that it belongs to is, and the keys go there.
    if (!QTest::qWaitFor([top] { return QApplication::activeWindow() == top; }))
        throw std::runtime_error("The window does not get the keys.");
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &window_, key, modifiers);
    QApplication::processEvents();
    ++keys_;
}

QTreeWidget& Walker::Boxes() {
    return driving::Find<QTreeWidget>(window_, "lvwSettings");
}

// "Image [form03.tif], Profile [Walk]" in the panel; empty without a form.
std::string Walker::OpenForm() const {
    const QString text = driving::Find<QLabel>(window_, "Message").text();
    return text.startsWith("Image [") ? ui::FromQt(text.mid(7, text.indexOf(".tif") - 7)) : std::string();
}

bool Walker::IsWrong(const QTreeWidgetItem& row) const {
    const std::vector<std::string>& meant = truth_.at(OpenForm());
    const bool isMeant = std::ranges::find(meant, ui::FromQt(row.text(0))) != meant.end();
    return isMeant != (row.text(1) == "1");
}

const QTreeWidgetItem* Walker::FirstWrongRow() {
    for (int row = 0; row < Boxes().topLevelItemCount(); ++row)
        if (IsWrong(*Boxes().topLevelItem(row)))
            return Boxes().topLevelItem(row);
    return nullptr;
}

// What is in doubt is looked at box by box, until all is as it was meant.
void Walker::CorrectForm() {
    const int most = keys_ + 2 * Boxes().topLevelItemCount();
    while (const QTreeWidgetItem* const wrong = FirstWrongRow()) {
        const QTreeWidgetItem* const row = Boxes().currentItem();
        if (row != nullptr && Boxes().hasFocus() && IsWrong(*row))
            Press(Qt::Key_Space);
        else
            Press(Qt::Key_D, Qt::ControlModifier);
        if (keys_ > most)
            throw std::runtime_error("No doubt leads to " +
                                     ui::FromQt(wrong->text(0) + " (ink " + wrong->text(2)) +
                                     "), misread in " + OpenForm() + ".");
    }
}

void Walker::GoOnThroughAll() {
    Press(Qt::Key_F6);
    Press(Qt::Key_Return);
    Press(Qt::Key_F, Qt::ControlModifier);
    Press(Qt::Key_Down);  // not reviewed
    std::string last;
    for (std::string form = OpenForm(); !form.empty() && form != last; form = OpenForm()) {
        CorrectForm();
        Press(Qt::Key_Return, Qt::ControlModifier);
        last = form;
    }
}

// Nobody presses a key for it: the doubts are counted while the person is away.
void Walker::WaitForCounts() {
    const QAbstractItemModel& lines = *driving::Find<QTreeView>(window_, "lvwReview").model();
    constexpr int kLongest = 300'000;  // milliseconds
    const bool isCounted = QTest::qWaitFor(
        [&lines] {
            for (int row = 0; row < lines.rowCount(); ++row)
                if (lines.index(row, ui::ReviewTable::kDoubts).data().toString().isEmpty())
                    return false;
            return true;
        },
        kLongest);
    if (!isCounted)
        throw std::runtime_error("The doubts of the forms are not counted.");
}

bool Walker::IsWrongPicture(const QModelIndex& box) const {
    const auto role = [&box](int which) { return box.data(which); };
    const std::vector<std::string>& meant = truth_.at(ui::FromQt(role(ui::SheetModel::kForm).toString()));
    const std::string name = ui::FromQt(role(ui::SheetModel::kBox).toString());
    return role(ui::SheetModel::kChecked).toBool() != (std::ranges::find(meant, name) != meant.end());
}

void Walker::MoveTo(const QListView& view, int row) {
    constexpr int kColumns = ui::SheetView::kColumns;
    for (int at = view.currentIndex().row(); at != row; at = view.currentIndex().row())
        Press(row - at >= kColumns  ? Qt::Key_Down
              : row > at            ? Qt::Key_Right
              : at - row > kColumns ? Qt::Key_Up
                                    : Qt::Key_Left);
}

void Walker::ExtendTo(const QListView& view, int row) {
    for (int at = view.currentIndex().row(); at < row; at = view.currentIndex().row())
        Press(row - at >= ui::SheetView::kColumns ? Qt::Key_Down : Qt::Key_Right, Qt::ShiftModifier);
}

// Runs of misread boxes are selected and turned round together.
void Walker::JudgeScreen(const QListView& view) {
    const QAbstractItemModel& boxes = *view.model();
    const int first = view.verticalScrollBar()->value() * ui::SheetView::kColumns;
    const int end = std::min(first + ui::SheetView::kScreen, boxes.rowCount());
    const auto isReady = [&boxes](int row) {
        return !boxes.index(row, 0).data(ui::SheetModel::kBox).toString().isEmpty();
    };
    for (int row = first; row < end; ++row)
        if (!QTest::qWaitFor([&] { return isReady(row); }, 60'000))
            throw std::runtime_error("The sheet shows no picture.");
    for (int row = first; row < end; ++row) {
        if (!IsWrongPicture(boxes.index(row, 0)))
            continue;
        int last = row;
        while (last + 1 < end && IsWrongPicture(boxes.index(last + 1, 0)))
            ++last;
        MoveTo(view, row);
        ExtendTo(view, last);
        Press(Qt::Key_Space);
        row = last;
    }
}

void Walker::WorkThroughSheet(const QDialog& sheet) {
    constexpr int kMostScreens = 50;
    for (int screens = 0; sheet.isVisible() && screens < kMostScreens; ++screens) {
        JudgeScreen(driving::Find<QListView>(sheet, "lvwSheet"));
        Press(Qt::Key_Return, Qt::ControlModifier);
    }
    if (sheet.isVisible())
        throw std::runtime_error("The sheet does not come to an end.");
}

// The dialog takes the keys while the key that opens it is still being worked on.
void Walker::InNextDialog(const std::function<void(QDialog& dialog)>& act) {
    constexpr int kTryAgain = 10;  // milliseconds
    QTimer::singleShot(kTryAgain, &window_, [this, act] {
        auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            InNextDialog(act);
            return;
        }
        try {
            act(*dialog);
        } catch (...) {
            failure_ = std::current_exception();
            dialog->hide();
        }
    });
}

void Walker::PressWithDialog(Qt::Key key, Qt::KeyboardModifiers modifiers,
                             const std::function<void(QDialog& dialog)>& act) {
    InNextDialog(act);
    Press(key, modifiers);
    if (failure_)
        std::rethrow_exception(failure_);
}

void Walker::SheetAndAcceptAll() {
    Press(Qt::Key_F6);
    WaitForCounts();
    PressWithDialog(Qt::Key_F9, Qt::NoModifier, [this](const QDialog& sheet) { WorkThroughSheet(sheet); });
    PressWithDialog(Qt::Key_F9, Qt::ShiftModifier, [this](const QDialog&) { Press(Qt::Key_Return); });
}

}  // namespace tavrene::tour
