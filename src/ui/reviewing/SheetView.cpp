#include "ui/reviewing/SheetView.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <memory>

#include "ui/base/EmptyHint.h"
#include "ui/base/QtText.h"
#include "ui/reviewing/SheetCell.h"

namespace tavrene::ui {

SheetView::SheetView(QWidget* parent) : QListView(parent) {
    setObjectName("lvwSheet");
    setAccessibleName(Tr("SheetDialog", "Boxes to judge"));
    setFlow(QListView::LeftToRight);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setMovement(QListView::Static);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new SheetCell(this));
}

void SheetView::Show(SheetModel& model) {
    if (this->model() == &model)
        return;
    if (this->model() != nullptr)
        places_[Sheet()] = currentIndex().row();
    // Another model gets another selection; the one before would go on following all changes.
    const std::unique_ptr<QItemSelectionModel> before(selectionModel());
    setModel(&model);
    FitCells();
    if (model.rowCount() > 0)
        setCurrentIndex(model.index(std::clamp(places_[&model], 0, model.rowCount() - 1)));
}

int SheetView::FirstOnScreen() const {
    return verticalScrollBar()->value() * kColumns;
}

void SheetView::WantPictures() {
    const int first = FirstOnScreen();
    for (int row = std::min(first + 2 * kScreen, Sheet()->rowCount()) - 1; row >= first; --row)
        Sheet()->index(row).data(SheetModel::kPicture);
}

void SheetView::selectAll() {
    const int last = std::min(FirstOnScreen() + kScreen, Sheet()->rowCount()) - 1;
    if (last >= 0)
        selectionModel()->select({Sheet()->index(FirstOnScreen()), Sheet()->index(last)},
                                 QItemSelectionModel::ClearAndSelect);
}

// From one box to the next as one reads, also round the ends of the rows.
QModelIndex SheetView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    static constexpr std::pair<CursorAction, int> kSteps[] = {
        {MoveLeft, -1},      {MoveRight, 1},       {MovePrevious, -1},     {MoveNext, 1},
        {MoveUp, -kColumns}, {MoveDown, kColumns}, {MovePageUp, -kScreen}, {MovePageDown, kScreen}};
    const int last = Sheet()->rowCount() - 1;
    if (action == MoveHome || action == MoveEnd)
        return Sheet()->index(action == MoveHome ? 0 : last);
    const auto* const step = std::ranges::find(kSteps, action, &std::pair<CursorAction, int>::first);
    const int to = currentIndex().row() + step->second;
    const bool isRowStep = step->second % kColumns == 0 && std::abs(step->second) == kColumns;
    return last < 0 || (isRowStep && (to < 0 || to > last)) ? currentIndex()
                                                            : Sheet()->index(std::clamp(to, 0, last));
}

void SheetView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (listener_.changed)
        listener_.changed();
}

void SheetView::TurnSelected() {
    const QModelIndexList selected = selectedIndexes();
    for (const QModelIndex& index : selected)
        Sheet()->Turn(index.row());
    if (listener_.changed)
        listener_.changed();
}

void SheetView::keyPressEvent(QKeyEvent* event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isPlain && event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat())
            TurnSelected();
    } else if (isPlain && isEnter && currentIndex().isValid()) {
        listener_.opened(currentIndex().row());
    } else {
        QListView::keyPressEvent(event);
    }
}

void SheetView::mousePressEvent(QMouseEvent* event) {
    const bool isPlain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    pressed_ = isPlain ? indexAt(event->pos()) : QModelIndex();
    QListView::mousePressEvent(event);
}

// A click means the box under it; a frame that was drawn has selected others.
void SheetView::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    const QModelIndex index = pressed_;
    pressed_ = QModelIndex();
    if (index.isValid() && index == indexAt(event->pos()) && selectedIndexes() == QModelIndexList{index})
        TurnSelected();
}

// The first click of the two has turned the mark.
void SheetView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || event->button() != Qt::LeftButton)
        return;
    Sheet()->Turn(index.row());
    listener_.opened(index.row());
}

void SheetView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    FitCells();
}

void SheetView::SetHint(const QString& hint) {
    if (std::exchange(hint_, hint) != hint)
        viewport()->update();
}

void SheetView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (model() == nullptr || model()->rowCount() == 0)
        PaintEmptyHint(*viewport(), hint_);
}

void SheetView::FitCells() {
    const QSize cell(viewport()->width() / kColumns, viewport()->height() / kRows);
    if (cell != gridSize() && !cell.isEmpty())
        setGridSize(cell);
}

}  // namespace tavrene::ui
