#pragma once

#include <array>

#include "imaging/WorkGrid.h"
#include "recognition/Outline.h"

namespace tavrene::recognition {

/// Ink close outside of a box, in percent of a strip along each side: left, above, right, below. A strip is
/// half as deep as the box and keeps clear of its printed line.
using SideInk = std::array<double, 4>;

/// The four strips beside a box, in the order of `SideInk`: grid frame.
std::array<GridRect, 4> StripsBeside(const GridRect& box);

SideInk InkBeside(const imaging::WorkGrid& grid, const GridRect& box);

}  // namespace tavrene::recognition
