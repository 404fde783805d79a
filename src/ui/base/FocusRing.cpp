#include "ui/base/FocusRing.h"

#include <QApplication>
#include <QEvent>

namespace tavrene::ui {

FocusRing::FocusRing(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::Follow);
}

bool FocusRing::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        SetByKeys(true);
    else if (event->type() == QEvent::MouseButtonPress)
        SetByKeys(false);
    return false;
}

void FocusRing::SetByKeys(bool byKeys) {
    if (byKeys == isByKeys_)
        return;
    isByKeys_ = byKeys;
    Follow();
}

void FocusRing::Follow() {
    QWidget* const focus = isByKeys_ ? QApplication::focusWidget() : nullptr;
    if (frame_ == nullptr && focus != nullptr)
        frame_ = new QFocusFrame(focus->window());
    if (frame_ != nullptr)
        frame_->setWidget(focus);
}

}  // namespace tavrene::ui
