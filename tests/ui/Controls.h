#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <functional>
#include <set>
#include <string>

#include "driving/Controls.h"
#include "ui/base/QtText.h"

namespace tavrene::test {

using driving::Button;
using driving::Find;

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
