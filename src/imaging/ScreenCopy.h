#pragma once

#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// The same picture as a screen can take it: 8 bits of grey (0 is black) for grey and two-colour pictures, 32
/// bits of blue, green, red and opacity for all others. No bitmap when there is none, or no memory for it.
Bitmap CopyForScreen(const Bitmap& bitmap);

}  // namespace tavrene::imaging
