#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QListView>
#include <QTreeWidget>
#include <exception>
#include <functional>

#include "tour/walk/Forms.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::tour {

/// A person who goes through the processed forms by the keyboard alone, knows what the marks mean, and counts
/// the keys. A key with modifiers held is one.
class Walker {
  public:
    Walker(ui::MainWindow& window, const FormTruth& truth) : window_(window), truth_(truth) {}

    /// Looks at every form, turns round what was misread and saves each as reviewed; going on opens the next.
    void GoOnThroughAll();

    /// Judges the boxes in doubt of all forms on the sheet of doubts, turns round what was misread, and
    /// accepts all forms without doubt.
    void SheetAndAcceptAll();

    int Keys() const { return keys_; }

  private:
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    QTreeWidget& Boxes();
    std::string OpenForm() const;
    const QTreeWidgetItem* FirstWrongRow();
    bool IsWrong(const QTreeWidgetItem& row) const;
    void CorrectForm();
    void WaitForCounts();
    void InNextDialog(const std::function<void(QDialog& dialog)>& act);
    void PressWithDialog(Qt::Key key, Qt::KeyboardModifiers modifiers,
                         const std::function<void(QDialog& dialog)>& act);
    void WorkThroughSheet(const QDialog& sheet);
    void JudgeScreen(const QListView& view);
    bool IsWrongPicture(const QModelIndex& box) const;
    void MoveTo(const QListView& view, int row);
    void ExtendTo(const QListView& view, int row);

    ui::MainWindow& window_;
    const FormTruth& truth_;
    int keys_ = 0;
    std::exception_ptr failure_;  ///< Of what was done in a dialog.
};

}  // namespace tavrene::tour
