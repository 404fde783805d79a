#include "ui/shell/ContextMenu.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <utility>

namespace tavrene::ui {

ContextMenu::ContextMenu(QAbstractItemView& list, QList<QAction*> actions)
    : QObject(&list), list_(list), actions_(std::move(actions)) {
    list.viewport()->installEventFilter(this);
}

bool ContextMenu::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::ContextMenu)
        return false;
    const auto& asked = dynamic_cast<const QContextMenuEvent&>(*event);
    const bool byKey = asked.reason() == QContextMenuEvent::Keyboard;
    const QModelIndex line = byKey ? list_.currentIndex() : list_.indexAt(asked.pos());
    if (line.isValid())
        ShowAt(line,
               byKey ? list_.viewport()->mapToGlobal(list_.visualRect(line).center()) : asked.globalPos());
    return true;
}

void ContextMenu::ShowAt(const QModelIndex& line, const QPoint& place) {
    // The click may fill the list anew, or ask a question whose answer keeps another line.
    const int row = line.row();
    Q_EMIT list_.clicked(line);
    if (!list_.selectionModel()->isSelected(list_.model()->index(row, 0)))
        return;
    auto* const menu = new QMenu(&list_);
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

}  // namespace tavrene::ui
