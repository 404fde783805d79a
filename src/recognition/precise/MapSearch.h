#pragma once

#include <span>
#include <vector>

#include "recognition/precise/Alignment.h"

namespace tavrene::recognition::precise {

/// The best ways to lay the boxes on the page by one map, best first; none when less than half of the boxes
/// fit any.
std::vector<Alignment> SearchMaps(std::span<const SoughtBox> boxes, const CellPoint& middle,
                                  const PageReach& reach);

}  // namespace tavrene::recognition::precise
