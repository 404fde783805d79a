#pragma once

#include "boxes/BoxSheet.h"

namespace tavrene::samples {

/// The middles of the four lines of a printed outline, in the page frame. An even thickness puts them half
/// way between two pixels.
struct CentreLines {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
};

/// A pixel of the page frame.
struct PixelPlace {
    int X = 0;
    int Y = 0;
};

/// Prints one outline whose outer top left pixel is `place`; its breaks are not part of it. `dice` chooses
/// the side that is unlike the others.
CentreLines PaintOutline(Canvas& page, const PixelPlace& place, const OuterSize& size,
                         const OutlineStyle& style, Random& dice);

}  // namespace tavrene::samples
