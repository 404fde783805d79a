#pragma once

#include <map>
#include <set>
#include <string>

#include "app/Files.h"

namespace tavrene::review {

/// What the process logs in `folder` (ending in a separator) say last about each of the images: why one was
/// not read. Images of which the logs of the last weeks say nothing are left out. A log that cannot be read
/// counts as empty.
std::map<std::string, std::string> ReasonsInLogs(const app::Files& files, const std::string& folder,
                                                 const std::set<std::string>& imageNames);

}  // namespace tavrene::review
