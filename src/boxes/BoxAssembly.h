#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// Builds rectangles from segments that share corners and fills `Boxes` with those that pass the size test
/// and the filter. Segments that a box takes carry its number; sides that had to be created are appended.
void IdentifyBoxes(BoxAnalysis& analysis);

}  // namespace tavrene::boxes
