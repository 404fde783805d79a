#pragma once

#include <span>
#include <string>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::recognition {

/// Reads images that lie in `folder` (ending in a separator) without a result once more, by precise
/// alignment, and writes their result documents beside them. One line a form goes to the process log; an
/// image that has gone, has a result by now or cannot be read is passed over. Returns the number of forms
/// read.
int ReadFormsAgain(std::span<const std::string> imageNames, const std::string& folder, app::Files& files,
                   app::ActivityLog& log, app::Operator& person, PreciseReader& reader,
                   std::span<const profiles::ProfileRecord> profiles, std::int16_t fillThreshold);

}  // namespace tavrene::recognition
