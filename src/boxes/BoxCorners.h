#pragma once

#include <vector>

#include "boxes/BoxAnalysis.h"
#include "boxes/BoxOutline.h"

namespace tavrene::boxes {

/// A place on the page: column and row.
struct GridPoint {
    int X;
    int Y;
};

/// Where the side opposite the first segment of a box should end: at the ends of its two neighbours that the
/// first segment does not share.
struct ExpectedSide {
    GridPoint FarA;
    GridPoint FarB;
};

/// Ends of a fourth side may lie this many pixels from the expected ones, in column and in row: one more than
/// at a corner, for its place is carried over from the far ends of two other sides, each with an error of its
/// own.
inline constexpr int kEndReach = 3;

/// Whether two perpendicular segments have an end in common, within two pixels.
bool ShareCorner(const LineSeg& segment, const LineSeg& other);

/// `a` and `b` share a corner with `segment`.
ExpectedSide ExpectFourthSide(const LineSeg& segment, const LineSeg& a, const LineSeg& b);

/// Whether the two ends of `side` lie at the expected ones, in either order.
bool RunsBetween(const LineSeg& side, const ExpectedSide& expected);

/// One rectangle for every box number below `numbers` that has four sides and reaches the smallest size, in
/// the order of the numbers. The segments of a number that has fewer sides are released.
std::vector<RuledBox> BuildRectangles(BoxAnalysis& analysis, int numbers);

}  // namespace tavrene::boxes
