#include "ui/shell/EscapeFirst.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tavrene::ui {

EscapeFirst::EscapeFirst(QWidget& window, std::function<bool()> close)
    : QObject(&window), window_(window), close_(std::move(close)) {
    QCoreApplication::instance()->installEventFilter(this);
}

// An editor or a drag would have the key before the window has.
bool EscapeFirst::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return false;
    const auto* const widget = qobject_cast<QWidget*>(watched);
    return widget != nullptr && widget->window() == &window_ && close_();
}

}  // namespace tavrene::ui
