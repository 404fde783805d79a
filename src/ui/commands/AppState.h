#pragma once

#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "boxes/BoxAnalysis.h"
#include "profiles/ProfileRecord.h"
#include "recognition/ReadingOptions.h"

namespace tavrene::commands {

/// All state that the commands share. The main window owns it and hands each handler only what it works on.
struct AppState {
    app::Settings settings;
    recognition::ReadingOptions reading;
    app::WorkingFolders folders;  ///< Fixed when the window loads.
    boxes::PairReach reach;       ///< Fixed when the window loads.
    std::vector<profiles::ProfileRecord> profiles;
};

}  // namespace tavrene::commands
