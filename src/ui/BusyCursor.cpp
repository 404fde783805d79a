#include "ui/BusyCursor.h"

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
        before_.push_back(*cursor);
        QGuiApplication::restoreOverrideCursor();
    }
}

UsualCursor::~UsualCursor() {
    for (auto cursor = before_.rbegin(); cursor != before_.rend(); ++cursor)
        QGuiApplication::setOverrideCursor(*cursor);
}

}  // namespace tavrene::ui
