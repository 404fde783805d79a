#pragma once

#include <span>
#include <string>

#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"

namespace tavrene::commands {

/// Copies scans to `ProcessIn` as they are; of a folder all that lie in it and in the folders below it. Files
/// of other types are passed over. Names of scans that wait there are asked about once: those are
/// replaced, the new ones get other names, or nothing is copied. Names of files that have been processed are
/// not used again, or their results would be replaced unasked. What came of it is said in
/// the `Message` panel, and file by file where one cannot be copied. Throws `app::FileError` when the working
/// folders cannot be listed.
void CopyScansIn(std::span<const std::string> sources, app::Files& files, app::Operator& person,
                 const app::WorkingFolders& folders);

}  // namespace tavrene::commands
