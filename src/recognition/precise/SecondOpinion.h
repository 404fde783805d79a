#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "recognition/precise/PreciseReading.h"

namespace tavrene::recognition {

/// Where a precise reading says otherwise than the plain one.
struct SecondOpinion {
    bool onlyPrecise = false;        ///< The plain reading took the page for no form; it looks like one.
    bool otherProfile = false;       ///< It looks like another form than it was taken for, or like none.
    std::vector<std::size_t> boxes;  ///< Indices of the boxes whose state differs, in the profile's order.

    bool Agrees() const { return !onlyPrecise && !otherProfile && boxes.empty(); }
};

/// `winner` is what the plain reading took the page for (-1 for nothing), `marks` what it read.
SecondOpinion CompareReadings(int winner, std::span<const MarkReading> marks, const PreciseReading& precise);

}  // namespace tavrene::recognition
