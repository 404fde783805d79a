#pragma once

#include <atomic>
#include <iosfwd>

#include "batch/Options.h"

namespace tavrene::batch {

/// How the program ends, as `kUsage` has it.
enum class Exit { Done = 0, Failed = 1, Usage = 2, InUse = 3, SomeLeft = 4, Stopped = 5 };

/// Where the program writes to, and how it is stopped: `stop` may be set at any time, and the page at hand is
/// finished.
struct Surroundings {
    std::ostream& out;
    std::ostream& messages;
    const std::atomic<bool>& stop;
};

/// Processes the working folder as `options` has it.
Exit RunBatch(const Options& options, const Surroundings& surroundings);

}  // namespace tavrene::batch
