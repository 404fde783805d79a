#include "ui/look/FocusRing.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace tavrene::ui {

FocusRing::FocusRing(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &FocusRing::Follow);
}

bool FocusRing::eventFilter(QObject*, QEvent* event) {
    // Keys that are held for a click say nothing yet.
    constexpr std::array kHeld = {Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_AltGr, Qt::Key_Meta};
    if (event->type() == QEvent::KeyPress)
        SetByKeys(isByKeys_ ||
                  std::ranges::find(kHeld, static_cast<QKeyEvent*>(event)->key()) == kHeld.end());
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
