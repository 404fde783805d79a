#pragma once

#include <QPointer>
#include <QTreeWidget>
#include <functional>

#include "profiles/EditorScreen.h"

namespace tavrene::ui {

/// The box list `lvwSettings`: one row a box, with its name and at times its state. Names can be edited in
/// place while a profile is open.
class BoxListView final : public QTreeWidget, public profiles::EditableRows {
  public:
    struct Listener {
        std::function<void(int number)> clicked;  ///< By mouse or keyboard.
        std::function<void(int number, const QString& name)> renamed;
    };

    explicit BoxListView(QWidget* parent);

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    /// Whether a double click on a row edits its name.
    void SetEditable(bool editable);

    /// Starts editing the name of a box.
    void EditName(int number);

    /// Takes over what is being typed, as Enter would.
    void FinishEdit();

    void ClearRows() override;
    void AddValColumn() override;
    void RemoveExtraColumns() override;
    void AddRow(int number, std::string_view name, std::string_view value) override;
    void InsertRow(int number, std::string_view name) override;
    void RemoveRow(int number) override;
    void RenameRow(int number, std::string_view name) override;
    void SelectRow(int number) override;
    void RefreshRows() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// Of the left button only, as with single clicks.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    class NameDelegate;

    QTreeWidgetItem* RowOf(int number) const;
    int PlaceFor(int number) const;
    void TellClicked(const QTreeWidgetItem* row);

    Listener listener_;
    QPointer<QWidget> nameEditor_;
};

}  // namespace tavrene::ui
