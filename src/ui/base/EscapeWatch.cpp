#include "ui/base/EscapeWatch.h"

#include <QApplication>
#include <QKeyEvent>

#include "ui/base/BusyCursor.h"

namespace tavrene::ui {

EscapeWatch::EscapeWatch() : below_(QApplication::activeModalWidget()) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool EscapeWatch::eventFilter(QObject*, QEvent* event) {
    // A question that the work itself asks has to be answered.
    if (QApplication::activeModalWidget() != below_)
        return false;
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
            wasPressed_ = wasPressed_ || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
            return true;
        case QEvent::Close:
            // What is under way may not lose its window; the second try finds it stopped.
            event->ignore();
            wasPressed_ = true;
            return true;
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

void WorkUndisturbed(const std::function<void(const std::function<bool()>& goesOn)>& work) {
    const BusyCursor busy;
    const EscapeWatch escape;
    work([&escape] { return !escape.WasPressed(); });
}

}  // namespace tavrene::ui
