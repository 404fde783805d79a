#pragma once

#include "boxes/BoxCorners.h"

namespace tavrene::boxes {

/// A fourth side for a box whose own was not found, parallel to `segment`, from one expected end to the
/// other. Where the ink along it runs on beyond the largest box side it is some longer line, whose ends say
/// nothing; the side is then made again as a copy of `segment`, moved to the far ends.
LineSeg CreateSide(const BoxAnalysis& analysis, const LineSeg& segment, const ExpectedSide& expected,
                   std::int16_t boxNumber);

/// Length of the ink along a created side: the ink within it, and outwards from both ends up to the first
/// background. 0 unless it is longer than the largest box side of that axis.
int OverlongInk(const BoxAnalysis& analysis, const LineSeg& side);

}  // namespace tavrene::boxes
