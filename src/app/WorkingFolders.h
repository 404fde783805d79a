#pragma once

#include <string>

#include "app/Files.h"

namespace tavrene::app {

/// The eight sub-folders of the working folder, each path ending in a separator.
struct WorkingFolders {
    std::string ProfileImages;
    std::string Profiles;
    std::string ProcessIn;
    std::string ProcessOut;
    std::string ProcessFinal;
    std::string ProcessReject;
    std::string Temp;
    std::string Log;
};

/// The paths under `workDir`. They are fixed when the main window loads; a later change of the setting
/// reaches them at the next start.
WorkingFolders PathsUnder(const std::string& workDir);

/// Creates the sub-folders that are missing, in the order above. False at the first that cannot be created;
/// those made before it stay. The working folder itself is never created.
bool CreateWorkingFolders(Files& files, const std::string& workDir);

/// Removes from the sub-folders what earlier instances of the program left behind when they were killed.
void RemoveLeftovers(Files& files, const std::string& workDir);

}  // namespace tavrene::app
