#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

// The pixel side of box finding. All lengths are pixels of the image; nothing is scaled by resolution.

/// Fills single background pixels between two ink pixels, first along rows, then along columns, and notes in
/// `RowSkip` and `ColSkip` which rows and columns hold no run long enough for a box side. A run that is still
/// open at the third pixel from the far edge does not count.
void CloseGapsAndMarkRows(BoxAnalysis& analysis);

/// Finds the lines too long for a box side, into `Segments` and `LongLines`, and erases them (and the pixel
/// just after each) from the page as it was before gaps were closed; `WorkGrid` and `SaveGrid` become that.
void MaskLongLines(BoxAnalysis& analysis);

/// Collects into `Segments` the runs that fit the box sizes: horizontal ones by row and column, then vertical
/// ones by column and row.
void FindLines(BoxAnalysis& analysis);

/// `SaveGrid` becomes `WorkGrid` with the long lines painted back.
void RestoreLongLines(BoxAnalysis& analysis);

}  // namespace tavrene::boxes
