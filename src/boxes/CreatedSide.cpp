#include "boxes/CreatedSide.h"

#include <algorithm>

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

bool InkAt(const WorkGrid& grid, const LineSeg& side, int along) {
    return side.IsVertical() ? grid.IsInk(side.L, along) : grid.IsInk(along, side.T);
}

int StartOf(const LineSeg& side) {
    return side.IsVertical() ? side.T : side.L;
}

int EndOf(const LineSeg& side) {
    return side.IsVertical() ? side.B : side.R;
}

// Ink from `first` on, in steps of +1 or -1, up to the first background.
int InkRun(const WorkGrid& grid, const LineSeg& side, int first, int step) {
    int count = 0;
    for (int along = first; InkAt(grid, side, along); along += step)
        ++count;
    return count;
}

LineSeg Spanning(const LineSeg& segment, GridPoint a, GridPoint b, std::int16_t boxNumber) {
    LineSeg side;
    side.Orientation = segment.Orientation;
    side.BoxId = boxNumber;
    side.Link = -1;
    side.L = static_cast<std::int16_t>(std::min(a.X, b.X));
    side.T = static_cast<std::int16_t>(std::min(a.Y, b.Y));
    side.R = static_cast<std::int16_t>(std::max(a.X, b.X));
    side.B = static_cast<std::int16_t>(std::max(a.Y, b.Y));
    return side;
}

}  // namespace

int OverlongInk(const BoxAnalysis& analysis, const LineSeg& side) {
    const WorkGrid& grid = analysis.WorkGrid;
    int count = InkRun(grid, side, StartOf(side) - 1, -1) + InkRun(grid, side, EndOf(side) + 1, 1);
    for (int along = StartOf(side); along <= EndOf(side); ++along)
        count += InkAt(grid, side, along) ? 1 : 0;
    const int longest = side.IsVertical() ? analysis.Sizes.BoxMaxHeight : analysis.Sizes.BoxMaxWidth;
    return count > longest ? count : 0;
}

LineSeg CreateSide(const BoxAnalysis& analysis, const LineSeg& segment, const ExpectedSide& expected,
                   std::int16_t boxNumber) {
    LineSeg side = Spanning(segment, expected.FarA, expected.FarB, boxNumber);
    if (OverlongInk(analysis, side) <= analysis.Sizes.BoxMaxWidth)
        return side;
    if (segment.IsVertical()) {
        side.T = std::min(segment.T, segment.B);
        side.B = std::max(segment.T, segment.B);
    } else {
        side.L = std::min(segment.L, segment.R);
        side.R = std::max(segment.L, segment.R);
    }
    return side;
}

}  // namespace tavrene::boxes
