#include "ui/shell/ContextMenu.h"

#include <QAction>
#include <QMenu>
#include <utility>

namespace tavrene::ui {
namespace {

bool IsByKey(const QContextMenuEvent& asked) {
    return asked.reason() == QContextMenuEvent::Keyboard;
}

QModelIndex LineAskedFor(const QAbstractItemView& list, const QContextMenuEvent& asked) {
    return IsByKey(asked) ? list.currentIndex() : list.indexAt(asked.pos());
}

QPoint MenuPlace(const QAbstractItemView& list, const QModelIndex& line, const QContextMenuEvent& asked) {
    return IsByKey(asked) ? list.viewport()->mapToGlobal(list.visualRect(line).center()) : asked.globalPos();
}

}  // namespace

ContextMenu::ContextMenu(QAbstractScrollArea& area, Target target, QList<QAction*> actions)
    : QObject(&area), area_(area), target_(std::move(target)), actions_(std::move(actions)) {
    area.viewport()->installEventFilter(this);
}

bool ContextMenu::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::ContextMenu)
        return false;
    if (const auto place = target_(dynamic_cast<const QContextMenuEvent&>(*event)))
        ShowAt(*place);
    return true;
}

void ContextMenu::ShowAt(const QPoint& place) {
    auto* const menu = new QMenu(&area_);
    menu->setObjectName("ContextMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* const action : actions_)
        if (action->isEnabled() && action->isVisible())
            menu->addAction(action);
    if (menu->isEmpty())
        delete menu;
    else
        menu->popup(place);
}

ContextMenu::Target ClickedLine(QAbstractItemView& list,
                                std::function<bool(const QModelIndex& line)> isOpen) {
    return [&list, isOpen = std::move(isOpen)](const QContextMenuEvent& asked) -> std::optional<QPoint> {
        const QModelIndex line = LineAskedFor(list, asked);
        if (!line.isValid())
            return std::nullopt;
        const QPoint place = MenuPlace(list, line, asked);
        if (isOpen(line)) {
            list.setCurrentIndex(line);
            return place;
        }
        // The click may fill the list anew, or ask a question whose answer keeps another line.
        const int row = line.row();
        Q_EMIT list.clicked(line);
        const bool isTaken = list.selectionModel()->isSelected(list.model()->index(row, 0));
        return isTaken ? std::optional(place) : std::nullopt;
    };
}

ContextMenu::Target SelectedLine(QAbstractItemView& list) {
    return [&list](const QContextMenuEvent& asked) -> std::optional<QPoint> {
        const QModelIndex line = LineAskedFor(list, asked);
        if (!line.isValid())
            return std::nullopt;
        // Of several that are selected the menu means all.
        if (!list.selectionModel()->isSelected(line))
            list.setCurrentIndex(line);
        return MenuPlace(list, line, asked);
    };
}

ContextMenu::Target BoxOnPage(ImageView& page, BoxListView& rows) {
    return [&page, &rows](const QContextMenuEvent& asked) -> std::optional<QPoint> {
        const BoxLayer& boxes = page.Boxes();
        const int number = IsByKey(asked)
                               ? boxes.SelectedBox()
                               : boxes.BoxAt(page.viewportTransform().inverted().map(QPointF(asked.pos())));
        // Of several that are selected the menu means all.
        const bool isOfSeveral = number != 0 && boxes.HasSeveral() && boxes.IsMarked(number);
        if (number == 0 || (!isOfSeveral && !rows.MakeCurrent(number)))
            return std::nullopt;
        const QPointF middle = page.viewportTransform().map(boxes.PlaceOf(number).center());
        return IsByKey(asked) ? page.viewport()->mapToGlobal(middle.toPoint()) : asked.globalPos();
    };
}

}  // namespace tavrene::ui
