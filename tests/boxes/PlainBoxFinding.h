#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::test {

/// Box finding as plain nested loops over all pixels, all pairs of segments and all groups: the same steps in
/// their slow form, to hold the fast ones against. Each works in place on the same state.
namespace plain {

void CloseGapsAndMarkRows(boxes::BoxAnalysis& analysis);
void MaskLongLines(boxes::BoxAnalysis& analysis);
void FindLines(boxes::BoxAnalysis& analysis);
void FindIntersections(boxes::BoxAnalysis& analysis);
void TruncateLineOvershoots(boxes::BoxAnalysis& analysis);
void GroupParallelLines(boxes::BoxAnalysis& analysis);
void KeepBestParallel(boxes::BoxAnalysis& analysis);
void RestoreLongLines(boxes::BoxAnalysis& analysis);
void IdentifyBoxes(boxes::BoxAnalysis& analysis);

}  // namespace plain

}  // namespace tavrene::test
