#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "app/Clock.h"
#include "app/Files.h"
#include "app/FolderLock.h"
#include "app/Settings.h"
#include "ui/settings/QtSettingsStore.h"
#include "ui/shell/MainWindow.h"
#include "ui/shell/SingleInstance.h"

namespace tavrene::ui {

/// Name, version and look of the application; called once, when the QApplication exists.
void PrepareApplication();

/// The program put together from its parts: the person's settings, the disk, the machine's clock and the
/// window.
class Composition {
  public:
    /// Uses the settings below the person's configuration folder.
    Composition();

    /// Runs start-up, which ends with the window on the screen. False when another instance runs, or when
    /// another program works on the working folder, which the person is told.
    bool Start();

    /// The window of a successful start.
    MainWindow& Window() { return *window_; }

  private:
    bool MayUseFolder();

    QtSettingsStore store_;
    SingleInstance instance_;
    app::DiskFiles files_;
    app::SystemClock clock_;
    app::Settings settings_;
    std::optional<app::FolderLock> folder_;
    std::unique_ptr<MainWindow> window_;
};

}  // namespace tavrene::ui
