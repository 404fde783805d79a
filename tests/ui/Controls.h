#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <set>
#include <string>

#include "ui/base/QtText.h"

namespace tavrene::test {

/// The control of that object name; a test that asks for one that is not there ends.
template <typename Control>
Control& Find(const QWidget& window, const char* name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

/// The button of a toolbar by its key.
inline QAbstractButton& Button(const QWidget& window, const char* toolbarName, const char* key) {
    auto& toolbar = Find<QToolBar>(window, toolbarName);
    return dynamic_cast<QAbstractButton&>(*toolbar.widgetForAction(&Find<QAction>(toolbar, key)));
}

/// Does something whenever the window takes pending events.
class WhileRunning {
  public:
    explicit WhileRunning(std::function<void()> action) {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(action));
        timer_.start(0);
    }

  private:
    QTimer timer_;
};

/// Counts how often a widget is painted, and keeps what a label shows then.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    std::set<std::string> shown;
    int count = 0;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++count;
            if (const auto* const label = qobject_cast<QLabel*>(watched))
                shown.insert(ui::FromQt(label->text()));
        }
        return false;
    }
};

}  // namespace tavrene::test
