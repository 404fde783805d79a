#include "ui/base/InputWatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>

namespace tavrene::ui {

InputWatch::InputWatch() {
    last_.start();
    QCoreApplication::instance()->installEventFilter(this);
}

int InputWatch::LeftOf(int quiet) const {
    return static_cast<int>(std::max<qint64>(0, quiet - last_.elapsed()));
}

bool InputWatch::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::TouchUpdate:
            last_.restart();
            break;
        default:
            break;
    }
    return false;
}

}  // namespace tavrene::ui
