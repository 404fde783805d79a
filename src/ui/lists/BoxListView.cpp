#include "ui/lists/BoxListView.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <array>
#include <utility>

#include "app/ScopedFlag.h"
#include "ui/base/QtText.h"
#include "ui/base/Shown.h"
#include "ui/lists/NameRule.h"

namespace tavrene::ui {

using profiles::Pick;

namespace {

constexpr int kValColumn = 1;
constexpr int kInkColumn = 2;
constexpr int kValWidth = 52;
constexpr int kInkMargin = 24;
constexpr int kRowMargin = 6;

constexpr int kPencil = 14;

// Reads on light and dark bases alike.
const QColor kDoubt(255, 180, 0, 90);

void ShowName(QTreeWidgetItem& row, const QString& name) {
    row.setText(0, name);
    row.setToolTip(0, ToolTipOf(name));
}

// Room for the widest ink, as a doubtful row shows it.
int InkWidth(QFont font) {
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance("100.0%") + kPencil + kInkMargin;
}

void ShowDoubt(QTreeWidgetItem& row, const QString& why) {
    const bool isDoubtful = !why.isEmpty();
    for (int column = 0; column <= kInkColumn; ++column) {
        QFont bold = row.font(column);
        bold.setBold(true);
        row.setData(column, Qt::FontRole, isDoubtful ? QVariant(bold) : QVariant());
        row.setData(column, Qt::BackgroundRole, isDoubtful ? QVariant(QBrush(kDoubt)) : QVariant());
    }
    row.setToolTip(kInkColumn, why);
    row.setData(0, Qt::AccessibleDescriptionRole, why);
}

QIcon Pencil(const QColor& color) {
    QPixmap picture(2 * kPencil, 2 * kPencil);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QFont font = painter.font();
    font.setPixelSize(2 * kPencil);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(picture.rect(), Qt::AlignCenter, QStringLiteral("\u270E"));
    return picture;
}

void ShowCorrection(QTreeWidgetItem& row, bool isCorrected, const QColor& color) {
    const QString what = Tr("BoxListView", "The mark was turned round by hand: the ink says otherwise");
    row.setIcon(kInkColumn, isCorrected ? Pencil(color) : QIcon());
    row.setToolTip(kValColumn, isCorrected ? what : QString());
    row.setData(kValColumn, Qt::AccessibleDescriptionRole, isCorrected ? what : QString());
}

}  // namespace

// Edits names and tells of those that were changed by hand.
class BoxListView::NameDelegate final : public QStyledItemDelegate {
  public:
    explicit NameDelegate(BoxListView& list) : QStyledItemDelegate(&list), list_(list) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
        auto* const editor = new QLineEdit(parent);
        editor->setObjectName("BoxName");
        editor->setAccessibleName(Tr("BoxListView", "Name of the check box"));
        // The usual frame of a field would leave no room for the text in a row.
        editor->setStyleSheet("QLineEdit { border: 1px solid palette(highlight); }");
        editor->setValidator(new NameRule(*editor));
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
    setAccessibleName(Tr("BoxListView", "Check boxes of the page"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(QFrame::NoFrame);
    setHeaderLabels({Tr("BoxListView", "Check box")});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionsMovable(false);
    setItemDelegateForColumn(0, new NameDelegate(*this));
    SetEditable(false);
    // Whatever makes a row current, be it a button of the mouse, a drag over the rows, the Tab key of the
    // name editor or the focus: it is the one that commands act on. A click on the current row shows its box
    // again.
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* row) { TakeCurrent(row, isSpanning_ ? Pick::Span : Pick::Only); });
    connect(this, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* row) { TakeCurrent(row, Pick::Only); });
}

void BoxListView::SetEditable(bool editable) {
    setEditTriggers(editable ? QAbstractItemView::DoubleClicked : QAbstractItemView::NoEditTriggers);
}

bool BoxListView::MakeCurrent(int number) {
    QTreeWidgetItem* const row = RowOf(number);
    if (row != nullptr)
        setCurrentItem(row);
    return row != nullptr;
}

QString BoxListView::NameOf(int number) const {
    const QTreeWidgetItem* const row = RowOf(number);
    return row == nullptr ? QString() : row->text(0);
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

int BoxListView::NumberOf(const QTreeWidgetItem* row) {
    return row == nullptr ? 0 : row->data(0, Qt::UserRole).toInt();
}

void BoxListView::ClearRows(profiles::BoxColumns columns) {
    const app::ScopedFlag ours(isOurs_);
    clear();
    setColumnCount(static_cast<int>(columns) + 1);
    for (int column = kValColumn; column < columnCount(); ++column) {
        headerItem()->setText(column,
                              column == kValColumn ? Tr("BoxListView", "Val") : Tr("BoxListView", "Ink"));
        headerItem()->setTextAlignment(column, Qt::AlignCenter);
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, column == kValColumn ? kValWidth : InkWidth(font()));
    }
}

void BoxListView::PutRow(int number, const profiles::BoxRow& row) {
    QTreeWidgetItem* const present = RowOf(number);
    QTreeWidgetItem& item = present == nullptr ? AddRow(number) : *present;
    ShowName(item, ToQt(row.name));
    if (columnCount() > kValColumn) {
        item.setText(kValColumn, ToQt(row.val));
        item.setCheckState(kValColumn, row.val == "1" ? Qt::Checked : Qt::Unchecked);
        item.setTextAlignment(kValColumn, Qt::AlignCenter);
    }
    if (columnCount() > kInkColumn) {
        item.setText(kInkColumn, ToQt(row.ink));
        item.setTextAlignment(kInkColumn, Qt::AlignRight | Qt::AlignVCenter);
        ShowDoubt(item, Shown(row.doubt));
        ShowCorrection(item, row.isCorrected, palette().color(QPalette::Text));
    }
}

QTreeWidgetItem& BoxListView::AddRow(int number) {
    auto* const row = new QTreeWidgetItem;
    row->setData(0, Qt::UserRole, number);
    row->setSizeHint(0, {0, fontMetrics().height() + kRowMargin});
    row->setFlags((row->flags() | Qt::ItemIsEditable) & ~Qt::ItemIsUserCheckable);
    insertTopLevelItem(PlaceFor(number), row);
    return *row;
}

void BoxListView::RemoveRow(int number) {
    const app::ScopedFlag ours(isOurs_);
    delete RowOf(number);
}

void BoxListView::SelectRow(int number) {
    const app::ScopedFlag ours(isOurs_);
    QTreeWidgetItem* const row = RowOf(number);
    clearSelection();
    setCurrentItem(row);
    if (row != nullptr)
        scrollToItem(row);
}

void BoxListView::SelectRows(std::span<const int> numbers, int current) {
    SelectRow(current);
    // Rows beside each other are one range, so that a thousand take no longer than one.
    QItemSelection rows;
    for (const int number : numbers) {
        const QModelIndex row = indexFromItem(RowOf(number));
        if (!rows.isEmpty() && rows.last().bottom() + 1 == row.row())
            rows.last() = {rows.last().topLeft(), row};
        else
            rows.append({row, row});
    }
    selectionModel()->select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
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
        if (NumberOf(topLevelItem(middle)) <= number)
            first = middle + 1;
        else
            last = middle;
    }
    return first;
}

QTreeWidgetItem* BoxListView::RowOf(int number) const {
    QTreeWidgetItem* const row = topLevelItem(PlaceFor(number) - 1);
    return NumberOf(row) == number ? row : nullptr;
}

void BoxListView::TakeCurrent(QTreeWidgetItem* row, Pick pick) {
    if (row == nullptr || isOurs_)
        return;
    selectionModel()->select(indexFromItem(row),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (listener_.chosen)
        listener_.chosen(NumberOf(row), pick);
}

bool BoxListView::IsFurther(const QMouseEvent& event) const {
    return editTriggers() != QAbstractItemView::NoEditTriggers && event.button() == Qt::LeftButton &&
           (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
}

void BoxListView::mousePressEvent(QMouseEvent* event) {
    // The menu of a row among several that are selected means all of them.
    const QModelIndex row = indexAt(event->position().toPoint());
    if (event->button() == Qt::RightButton && selectionModel()->isSelected(row)) {
        setFocus(Qt::MouseFocusReason);
        return;
    }
    isFurther_ = IsFurther(*event);
    if (!isFurther_) {
        QTreeWidget::mousePressEvent(event);
        return;
    }
    setFocus(Qt::MouseFocusReason);
    if (const int number = NumberOf(itemAt(event->position().toPoint())); number != 0 && listener_.chosen)
        listener_.chosen(number,
                         event->modifiers().testFlag(Qt::ControlModifier) ? Pick::Toggle : Pick::Span);
}

void BoxListView::mouseMoveEvent(QMouseEvent* event) {
    if (!isFurther_)
        QTreeWidget::mouseMoveEvent(event);
}

void BoxListView::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(isFurther_, false))
        QTreeWidget::mouseReleaseEvent(event);
}

void BoxListView::keyPressEvent(QKeyEvent* event) {
    // A letter with Shift is a search for a name.
    constexpr std::array kSteps = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                   Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    isSpanning_ = editTriggers() != QAbstractItemView::NoEditTriggers &&
                  event->modifiers().testFlag(Qt::ShiftModifier) &&
                  std::ranges::find(kSteps, event->key()) != kSteps.end();
    QTreeWidget::keyPressEvent(event);
    isSpanning_ = false;
}

QItemSelectionModel::SelectionFlags BoxListView::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    // Space would select the current row, which is among the selected ones already.
    const bool isSpace = event != nullptr && event->type() == QEvent::KeyPress &&
                         dynamic_cast<const QKeyEvent&>(*event).key() == Qt::Key_Space;
    // Which rows a span takes is told while the key is still at work.
    return index.isValid() && !isSpanning_ && !isSpace
               ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
               : QItemSelectionModel::SelectionFlags(QItemSelectionModel::NoUpdate);
}

void BoxListView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        QTreeWidget::mouseDoubleClickEvent(event);
}

}  // namespace tavrene::ui
