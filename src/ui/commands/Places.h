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

/// The path of an image that a run has taken, wherever it has got to since; empty when it has left the
/// working folder.
std::string ImageInUse(const app::Files& files, const app::WorkingFolders& folders, const std::string& name);

/// Whether an image that a run has taken lies in `ProcessOut` with its result, and no other of its name
/// waits.
bool WaitsForReview(const app::Files& files, const app::WorkingFolders& folders, const std::string& name);

}  // namespace tavrene::commands
