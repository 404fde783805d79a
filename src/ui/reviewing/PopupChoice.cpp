#include "ui/reviewing/PopupChoice.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace tavrene::ui {

void PopupChoice::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void PopupChoice::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Space:
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F4:
            showPopup();
            break;
        default:
            event->ignore();
    }
}

}  // namespace tavrene::ui
