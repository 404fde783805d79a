#include "ui/base/CalmWheel.h"

#include <QEvent>
#include <QWidget>

namespace tavrene::ui {

CalmWheel::CalmWheel(QWidget& widget) : QObject(&widget) {
    // By default a turn of the wheel gives the focus, too.
    widget.setFocusPolicy(Qt::StrongFocus);
    widget.installEventFilter(this);
}

bool CalmWheel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return false;
    event->ignore();
    return true;
}

}  // namespace tavrene::ui
