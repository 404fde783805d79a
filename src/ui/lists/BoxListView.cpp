#include "ui/lists/BoxListView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

constexpr int kValColumn = 1;
constexpr int kValWidth = 52;
constexpr int kRowMargin = 6;

int NumberOf(const QTreeWidgetItem& row) {
    return row.data(0, Qt::UserRole).toInt();
}

void ShowName(QTreeWidgetItem& row, const QString& name) {
    row.setText(0, name);
    row.setToolTip(0, ToolTipOf(name));
}

}  // namespace

// Edits names and tells of those that were changed by hand.
class BoxListView::NameDelegate final : public QStyledItemDelegate {
  public:
    explicit NameDelegate(BoxListView& list) : QStyledItemDelegate(&list), list_(list) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* const editor = new QLineEdit(parent);
        editor->setObjectName("BoxName");
        editor->setAccessibleName("Name of the check box");
        // The usual frame of a field would leave no room for the text in a row.
        editor->setStyleSheet("QLineEdit { border: 1px solid palette(highlight); }");
        list_.nameEditor_ = editor;
        return editor;
    }

    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const override {
        const QString name = qobject_cast<QLineEdit*>(editor)->text();
        if (name == index.data().toString())
            return;
        const int number = index.data(Qt::UserRole).toInt();
        ShowName(*list_.itemFromIndex(index), name);
        list_.listener_.renamed(number, name);
    }

  private:
    BoxListView& list_;
};

BoxListView::BoxListView(QWidget* parent) : QTreeWidget(parent) {
    setObjectName("lvwSettings");
    setAccessibleName("Check boxes of the page");
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(QFrame::NoFrame);
    setHeaderLabels({"Check box"});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
    setItemDelegateForColumn(0, new NameDelegate(*this));
    SetEditable(false);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* row) { TellClicked(row); });
}

void BoxListView::SetEditable(bool editable) {
    setEditTriggers(editable ? QAbstractItemView::DoubleClicked : QAbstractItemView::NoEditTriggers);
}

void BoxListView::EditName(int number) {
    if (QTreeWidgetItem* const row = RowOf(number)) {
        setFocus();
        editItem(row);
    }
}

void BoxListView::FinishEdit() {
    if (QWidget* const editor = nameEditor_; editor != nullptr && state() == EditingState) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

void BoxListView::ClearRows() {
    clear();
}

void BoxListView::AddValColumn() {
    if (columnCount() > kValColumn)
        return;
    setHeaderLabels({"Check box", "Val"});
    header()->setSectionResizeMode(kValColumn, QHeaderView::Fixed);
    header()->resizeSection(kValColumn, kValWidth);
    headerItem()->setTextAlignment(kValColumn, Qt::AlignCenter);
}

void BoxListView::RemoveExtraColumns() {
    setColumnCount(1);
}

void BoxListView::AddRow(int number, std::string_view name, std::string_view value) {
    InsertRow(number, name);
    if (columnCount() <= kValColumn)
        return;
    QTreeWidgetItem& row = *topLevelItem(PlaceFor(number) - 1);
    row.setText(kValColumn, ToQt(value));
    row.setTextAlignment(kValColumn, Qt::AlignCenter);
}

void BoxListView::InsertRow(int number, std::string_view name) {
    auto* const row = new QTreeWidgetItem;
    ShowName(*row, ToQt(name));
    row->setData(0, Qt::UserRole, number);
    row->setSizeHint(0, {0, fontMetrics().height() + kRowMargin});
    row->setFlags(row->flags() | Qt::ItemIsEditable);
    insertTopLevelItem(PlaceFor(number), row);
}

void BoxListView::RemoveRow(int number) {
    delete RowOf(number);
}

void BoxListView::RenameRow(int number, std::string_view name) {
    if (QTreeWidgetItem* const row = RowOf(number))
        ShowName(*row, ToQt(name));
}

void BoxListView::SelectRow(int number) {
    QTreeWidgetItem* const row = RowOf(number);
    clearSelection();
    setCurrentItem(row);
    if (row != nullptr)
        scrollToItem(row);
}

void BoxListView::RefreshRows() {
    viewport()->repaint();
}

// The place behind all rows of this number and below; rows stand in the order of their numbers.
int BoxListView::PlaceFor(int number) const {
    int first = 0;
    int last = topLevelItemCount();
    while (first < last) {
        const int middle = (first + last) / 2;
        if (NumberOf(*topLevelItem(middle)) <= number)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

QTreeWidgetItem* BoxListView::RowOf(int number) const {
    QTreeWidgetItem* const row = topLevelItem(PlaceFor(number) - 1);
    return row != nullptr && NumberOf(*row) == number ? row : nullptr;
}

void BoxListView::TellClicked(const QTreeWidgetItem* row) {
    if (row != nullptr && listener_.clicked)
        listener_.clicked(NumberOf(*row));
}

void BoxListView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        QTreeWidget::mouseDoubleClickEvent(event);
}

void BoxListView::keyPressEvent(QKeyEvent* event) {
    const QTreeWidgetItem* const before = currentItem();
    QTreeWidget::keyPressEvent(event);
    if (currentItem() != before)
        TellClicked(currentItem());
}

}  // namespace tavrene::ui
