#pragma once

#include "boxes/BoxOutline.h"
#include "boxes/second/FrameSearch.h"

namespace tavrene::boxes {

/// The box of a frame: every edge in the middle of its wall. A wall that is thicker than the others has a
/// shadow, a neighbour or print behind it, and its edge lies where that of the thinnest would.
BoxRect BoxOf(const Frame& frame, const imaging::WorkGrid& page);

}  // namespace tavrene::boxes
