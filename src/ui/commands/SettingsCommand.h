#pragma once

#include <functional>

#include "app/Operator.h"
#include "app/Settings.h"

namespace tavrene::commands {

/// Shows the settings dialog, which changes `settings` when it is saved, and tells in the `Message` panel
/// which of the changes wait for the next start.
void ShowSettings(app::Settings& settings, app::Operator& person,
                  const std::function<void(app::Settings&)>& showDialog);

}  // namespace tavrene::commands
