#pragma once

#include <string>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::commands {

/// The working folder whose sub-folders the window works in, without a trailing separator. The setting may
/// name another one already, which waits for the next start.
std::string WorkingFolderInUse(const app::WorkingFolders& folders);

/// The log that a person who asks for "the log" wants to read: the newest of processing, where nothing was
/// processed yet the newest of profiles, and the folder of the logs where there is none.
std::string LogToShow(const app::Files& files, const app::WorkingFolders& folders);

}  // namespace tavrene::commands
