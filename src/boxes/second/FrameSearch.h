#pragma once

#include <array>
#include <functional>
#include <vector>

#include "boxes/BoxAnalysis.h"
#include "boxes/second/InnerFaces.h"

namespace tavrene::boxes {

/// Four walls around an inside. `Left` to `Upper` are the columns and rows of their innermost ink, in the
/// grid frame (`Lower` is the lower row).
struct Frame {
    int Left = 0;
    int Right = 0;
    int Lower = 0;
    int Upper = 0;
    int MissingPixels = 0;   ///< Places along the four walls without ink, all together.
    int BentPixels = 0;      ///< Those of them where the ink has moved inwards instead, as in an arc.
    int WorstPercent = 100;  ///< Of the wall that shows the least of itself.

    /// Inner corners that are filled in, as those of round letters are; 0 to 4.
    int BluntCorners = 0;

    /// The middle of every wall runs in one line, as that of a box whose corners are missing does and that of
    /// a round letter does not.
    bool HasStraightMiddles = false;
};

/// The insides that are looked for, in pixels, walls not counted.
struct InsideLimits {
    int MinWidth;
    int MaxWidth;
    int MinHeight;
    int MaxHeight;
};

/// Finds frames by their upright walls: two with the same ends, and lines from one to the other at both.
/// `goOn` is asked now and then with the share that is done, 0 to 1; when it says no, the search ends with
/// what it has.
std::vector<Frame> FindFrames(const imaging::WorkGrid& page, const InsideLimits& limits,
                              const std::function<bool(double)>& goOn);

}  // namespace tavrene::boxes
