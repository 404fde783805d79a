#pragma once

#include <QPointer>
#include <QTreeWidget>
#include <functional>

#include "profiles/BoxRows.h"
#include "profiles/BoxSelection.h"

namespace tavrene::ui {

/// The box list `lvwSettings`: one row a box, with its name and at times its mark and ink. Names can be
/// edited in place while a profile is open.
class BoxListView final : public QTreeWidget, public profiles::BoxRows {
  public:
    struct Listener {
        /// By mouse or keyboard: the row is the current one now, or is picked beside others.
        std::function<void(int number, profiles::Pick pick)> chosen;
        std::function<void(int number, const QString& name)> renamed;
    };

    explicit BoxListView(QWidget* parent);

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    /// Whether a double click on a row edits its name.
    void SetEditable(bool editable);

    /// Makes the row of a box the current one, as a key would, and tells of it; false when it has none.
    bool MakeCurrent(int number);

    /// Starts editing the name of a box.
    void EditName(int number);

    /// Takes over what is being typed, as Enter would.
    void FinishEdit();

    /// The box's number of a row, or of the current row; 0 for none.
    static int NumberOf(const QTreeWidgetItem* row);
    int CurrentNumber() const { return NumberOf(currentItem()); }

    void ClearRows(profiles::BoxColumns columns) override;
    void PutRow(int number, const profiles::BoxRow& row) override;
    void RemoveRow(int number) override;
    void SelectRow(int number) override;
    void SelectRows(std::span<const int> numbers, int current) override;
    void RefreshRows() override;

  protected:
    /// The current row is always the selected one: no key takes that away.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

    /// While names can be edited, Ctrl and Shift pick further rows; which ones are selected then is told
    /// back.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Of the left button only, as with single clicks.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    class NameDelegate;

    QTreeWidgetItem* RowOf(int number) const;
    QTreeWidgetItem& AddRow(int number);
    int PlaceFor(int number) const;
    void TakeCurrent(QTreeWidgetItem* row, profiles::Pick pick);
    bool IsFurther(const QMouseEvent& event) const;

    Listener listener_;
    bool isOurs_ = false;      ///< The current row is changed by the program.
    bool isFurther_ = false;   ///< The button that is down picked a row beside others.
    bool isSpanning_ = false;  ///< The key that is pressed takes the rows on its way with it.
    QPointer<QWidget> nameEditor_;
};

}  // namespace tavrene::ui
