#pragma once

#include <QPointer>
#include <QTreeWidget>
#include <functional>

#include "profiles/BoxRows.h"

namespace tavrene::ui {

/// The box list `lvwSettings`: one row a box, with its name and at times its mark and ink. Names can be
/// edited in place while a profile is open.
class BoxListView final : public QTreeWidget, public profiles::BoxRows {
  public:
    struct Listener {
        std::function<void(int number)> chosen;  ///< By mouse or keyboard: the row is the current one now.
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
    void RefreshRows() override;

  protected:
    /// The current row is always the selected one: no key takes that away.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

    /// Of the left button only, as with single clicks.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    class NameDelegate;

    QTreeWidgetItem* RowOf(int number) const;
    QTreeWidgetItem& AddRow(int number);
    int PlaceFor(int number) const;
    void TakeCurrent(QTreeWidgetItem* row);

    Listener listener_;
    bool isOurs_ = false;  ///< The current row is changed by the program.
    QPointer<QWidget> nameEditor_;
};

}  // namespace tavrene::ui
