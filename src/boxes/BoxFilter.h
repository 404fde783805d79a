#pragma once

#include <vector>

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// Width and height of a box, in pixels.
struct BoxSize {
    int Width = 0;
    int Height = 0;
    bool operator==(const BoxSize&) const = default;
};

/// The sizes that the boxes of a form come in: the most common one, and a second one, which is the most
/// common one again where the form has only one.
struct ReferenceSizes {
    BoxSize MostCommon;
    BoxSize Second;
};

BoxSize SizeOf(const BoxRect& box);

/// Chooses the reference sizes from the boxes that are valid.
ReferenceSizes ChooseReferenceSizes(const std::vector<BoxRect>& boxes);

/// Drops from `Boxes` those that were invalid, that have neither reference size, or that stand in the list
/// again later.
void FilterBoxes(BoxAnalysis& analysis);

}  // namespace tavrene::boxes
