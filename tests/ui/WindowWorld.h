#pragma once

#include <QGraphicsView>
#include <QTest>
#include <memory>

#include "support/RunWorld.h"
#include "ui/Controls.h"
#include "ui/MainWindow.h"
#include "ui/QtSettingsStore.h"

namespace tavrene::test {

/// The real window over a working folder of its own.
class WindowWorld : public RunWorld {
  protected:
    WindowWorld() { settings_.DisplayDuringProcess = true; }

    ui::MainWindow& Open() {
        window_ = std::make_unique<ui::MainWindow>(settings_, ui::WindowDoors{store_, files_, clock_});
        window_->Load();
        window_->show();
        window_->activateWindow();
        QApplication::processEvents();
        return *window_;
    }

    void Click(const char* key, const char* toolbar = "MainToolbar") {
        Button(*window_, toolbar, key).click();
    }

    /// Through the window's shortcuts, as from the keyboard.
    static void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        widget.activateWindow();
        QApplication::processEvents();
        QTest::keyClick(&widget, key, modifiers);
    }

    QGraphicsView& View() { return Find<QGraphicsView>(*window_, "ImgEdit1"); }
    std::string Panel(const char* key) { return ui::FromQt(Find<QLabel>(*window_, key).text()); }

    TempFolder config_;
    ui::QtSettingsStore store_{ui::ToQt(config_.Path())};
    std::unique_ptr<ui::MainWindow> window_;
};

}  // namespace tavrene::test
