#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "recognition/RunSummary.h"
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

/// A form that precise alignment would read otherwise than it was read.
struct FormToRead {
    std::string image;
    std::string result;  ///< Fingerprint of the document that may be replaced; empty where it has none.
};

/// The forms of a run that a second opinion would read, as the run has left them in `folder` (ending in a
/// separator).
std::vector<FormToRead> FormsToRead(const app::Files& files, const OpinionTally& opinions,
                                    const std::string& folder);

struct FormsReadAgain {
    std::vector<FileReport> read;  ///< Forms that have a result of precise alignment now.
    std::vector<FormToRead> left;  ///< Those that lie there as before.
};

/// Reads images that lie in `folder` (ending in a separator) once more, by precise alignment, and writes
/// their result documents beside them. One line a form goes to the process log, and the progress bar follows.
/// An image that has gone or cannot be read is passed over, and so is one whose result is another by now: a
/// person may have corrected it.
FormsReadAgain ReadFormsAgain(const ReadAgainContext& context, std::span<const FormToRead> forms,
                              const std::string& folder, std::span<const profiles::ProfileRecord> profiles,
                              std::int16_t fillThreshold);

}  // namespace tavrene::recognition
