#pragma once

#include <functional>
#include <string>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::commands {

/// What loading the window needs of the world.
struct LoadContext {
    app::ActivityLog& log;
    app::Operator& person;
    std::function<std::string()> imageLibraryVersion;  ///< Empty text or an exception: it cannot be called.
    std::function<void()> loadProfiles;                ///< Fills the profile list and the thumbnail strip.
};

/// The state with which the window starts: settings and the folder paths derived from them.
AppState InitialState(const app::Settings& settings);

/// Tests the image library, loads the profiles and fixes the reach of box finding, in this order. A step that
/// fails is told through the gate and does not keep the window from opening.
void LoadWindow(AppState& state, const LoadContext& context, CommandGate& gate);

}  // namespace tavrene::commands
