#pragma once

namespace tavrene::recognition {

/// How forms are read.
struct ReadingOptions {
    bool preciseAlignment = false;  ///< By precise alignment instead of the plain reading.
    bool secondOpinion = false;     ///< Without it: precise alignment looks, and says where it differs.
    bool allCores = false;          ///< Several at a time.
};

}  // namespace tavrene::recognition
