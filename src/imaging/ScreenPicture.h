#pragma once

#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// The same picture as a screen can take it: black and white stay at one bit, where 1 is black; grey has 8
/// bits (0 is black), all others 32 bits of blue, green, red and opacity. No bitmap when there is none, or no
/// memory for it.
Bitmap ScreenPicture(Bitmap picture);

}  // namespace tavrene::imaging
