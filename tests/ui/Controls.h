#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QToolBar>
#include <functional>
#include <string>
#include <vector>

#include "ui/QtText.h"

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

/// Closes every message box that opens while it lives by its default button and keeps the texts.
class BoxCloser {
  public:
    BoxCloser() {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                texts.push_back(ui::FromQt(box->windowTitle() + ": " + box->text()));
                box->accept();
            }
        });
        timer_.start(0);
    }

    std::vector<std::string> texts;

  private:
    QTimer timer_;
};

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

}  // namespace tavrene::test
