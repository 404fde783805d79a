#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// Fills `Crossings` and `CornerHits` of every segment from the segments of the other orientation near it.
/// The end test holds a column against a row, so hits occur near the page's diagonal only; assembly relies on
/// them as they are.
void FindIntersections(BoxAnalysis& analysis);

/// Moves ends that stick out one or two pixels beyond a crossing back onto it.
void TruncateLineOvershoots(BoxAnalysis& analysis);

/// Sorts the segments into `Groups` of near duplicates: on the same line within one pixel, with one of their
/// two ends agreeing within three.
void GroupParallelLines(BoxAnalysis& analysis);

/// Keeps of every group its first member with exactly two crossings, else its longest, and empties `Groups`.
void KeepBestParallel(BoxAnalysis& analysis);

}  // namespace tavrene::boxes
