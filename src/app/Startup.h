#pragma once

#include <functional>

#include "app/Files.h"
#include "app/Settings.h"
#include "app/SettingsStore.h"

namespace tavrene::app {

/// What start-up needs of the world; the two screens are handed in so that it runs without a display.
struct StartupContext {
    SettingsStore& store;
    Files& files;
    std::function<bool()> becomeOnlyInstance;           ///< False when another instance is running.
    std::function<void(Settings&)> showSettingsDialog;  ///< Modal; returns when the dialog is closed.
    std::function<void()> showMainWindow;
};

/// The ordered steps from program start to the main window. Fills `settings` and writes defaults for numbers
/// that read as 0. False, with nothing written and nothing shown, when another instance is running.
bool RunStartup(Settings& settings, const StartupContext& context);

}  // namespace tavrene::app
