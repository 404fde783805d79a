#pragma once

#include <vector>

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// Orders boxes from the top of the page down, and from left to right within a row, by their lower row and
/// left column; those that agree in both stay as they are. `width` is that of the image.
void SortBoxes(std::vector<BoxRect>& boxes, int width);

}  // namespace tavrene::boxes
