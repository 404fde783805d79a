#include "ui/base/BusyCursor.h"

#include <QGuiApplication>

namespace tavrene::ui {

BusyCursor::BusyCursor() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

BusyCursor::~BusyCursor() {
    QGuiApplication::restoreOverrideCursor();
}

UsualCursor::UsualCursor() {
    while (const QCursor* const cursor = QGuiApplication::overrideCursor()) {
        before_.insert(before_.begin(), *cursor);
        QGuiApplication::restoreOverrideCursor();
    }
}

UsualCursor::~UsualCursor() {
    for (const QCursor& cursor : before_)
        QGuiApplication::setOverrideCursor(cursor);
}

}  // namespace tavrene::ui
