#pragma once

#include <span>
#include <string>

#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"

namespace tavrene::commands {

/// Copies scans to `ProcessIn` as they are; of a folder all that lie in it and in the folders below it. Files
/// of other types are passed over. Names that the processing folders have already are asked about once: the
/// waiting scans are replaced, the new ones get other names, or nothing is copied. What came of it is said in
/// the `Message` panel, and file by file where one cannot be copied. Throws `app::FileError` when the working
/// folders cannot be listed.
void CopyScansIn(std::span<const std::string> sources, app::Files& files, app::Operator& person,
                 const app::WorkingFolders& folders);

}  // namespace tavrene::commands
