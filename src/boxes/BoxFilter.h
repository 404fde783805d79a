#pragma once

#include <vector>

#include "boxes/BoxAnalysis.h"
#include "boxes/BoxOutline.h"
#include "boxes/SizeTable.h"

namespace tavrene::boxes {

/// The sizes that the boxes of a form come in: the most common one, and a second one, which is the most
/// common one again where the form has only one.
struct ReferenceSizes {
    BoxSize MostCommon;
    BoxSize Second;
};

/// Chooses the reference sizes from the boxes that are valid.
ReferenceSizes ChooseReferenceSizes(const std::vector<BoxRect>& boxes);

/// Sorts the rectangles that the rules have kept, in their order, into `Boxes` and `LeftOut`. Left out is
/// what does not look like a box on the page or has neither reference size; of twins the last one stays, and
/// the others leave no trace.
void FilterBoxes(BoxAnalysis& analysis, const std::vector<RuledBox>& ruled);

}  // namespace tavrene::boxes
