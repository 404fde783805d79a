#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::recognition {

/// What reading forms again needs of the world.
struct ReadAgainContext {
    app::Files& files;
    app::ActivityLog& log;
    app::Operator& person;
    PreciseReader& reader;
    const std::function<bool()>& goesOn;  ///< Asked before each form, after pending events were taken.
};

struct FormsReadAgain {
    int read = 0;                   ///< Forms that have a result now.
    std::vector<std::string> left;  ///< Images that still lie there without one.
};

/// Reads images that lie in `folder` (ending in a separator) without a result once more, by precise
/// alignment, and writes their result documents beside them. One line a form goes to the process log, and the
/// progress bar follows; an image that has gone, has a result by now or cannot be read is passed over.
FormsReadAgain ReadFormsAgain(const ReadAgainContext& context, std::span<const std::string> imageNames,
                              const std::string& folder, std::span<const profiles::ProfileRecord> profiles,
                              std::int16_t fillThreshold);

}  // namespace tavrene::recognition
