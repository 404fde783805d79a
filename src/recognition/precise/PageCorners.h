#pragma once

#include "recognition/precise/BitPlane.h"

namespace tavrene::recognition::precise {

/// Where two strokes of at least `kStroke` cells meet at a right angle, by the corner of a box that it would
/// be; grid frame. Gaps of two cells are bridged, and a stroke may run over into the next row or column.
struct PageCorners {
    BitPlane lowerLeft;
    BitPlane lowerRight;
    BitPlane upperLeft;
    BitPlane upperRight;
};

inline constexpr int kStroke = 6;

PageCorners FindCorners(const BitPlane& cells);

}  // namespace tavrene::recognition::precise
