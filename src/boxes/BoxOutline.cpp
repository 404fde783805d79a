#include "boxes/BoxOutline.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "boxes/SideFaces.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

// Far enough for the curve of a letter to leave the edge, near enough that a worn print mostly holds: longer
// arms lose boxes with a break beside a corner, shorter ones take in an O.
int ArmLength(int side) {
    return std::max(3, side / 6);
}

// The outline itself reaches inwards by its thickness.
int InnerMargin(int side) {
    return std::max(4, side / 4);
}

bool InkBeside(const WorkGrid& grid, int column, int row, int stepX, int stepY) {
    return grid.IsInk(column - stepX, row - stepY) || grid.IsInk(column, row) ||
           grid.IsInk(column + stepX, row + stepY);
}

// A corner of a rectangle, and the pixel where the outer edges of the two outlines meet.
struct Corner {
    int Column;
    int Row;
    int InwardX;
    int InwardY;
    int OuterColumn;
    int OuterRow;
};

bool AreArmsInked(const WorkGrid& grid, const BoxRect& box, const Corner& corner) {
    for (int along = 0; along <= ArmLength(box.R - box.L); ++along) {
        if (!InkBeside(grid, corner.Column + along * corner.InwardX, corner.Row, 0, 1))
            return false;
    }
    for (int along = 0; along <= ArmLength(box.B - box.T); ++along) {
        if (!InkBeside(grid, corner.Column, corner.Row + along * corner.InwardY, 1, 0))
            return false;
    }
    return true;
}

// Strokes of a letter may be thick enough to hide its curve, but their outer edges do not meet.
bool IsOuterPixelInked(const WorkGrid& grid, const Corner& corner) {
    for (int stepY = -1; stepY <= 1; ++stepY) {
        if (InkBeside(grid, corner.OuterColumn, corner.OuterRow + stepY, 1, 0))
            return true;
    }
    return false;
}

// How far the ink reaches from an edge to one side: the middle one of five places along it, so that neither a
// break nor the corners decide. `isInk` takes the place along the edge, of `length`, and the distance from
// it.
template <typename IsInk>
int InkReach(int length, IsInk isInk) {
    constexpr int farthest = 8;
    std::array<int, 5> reach{};
    for (int place = 0; place < 5; ++place) {
        const int along = length * (place + 1) / 6;
        int& distance = reach[static_cast<std::size_t>(place)];
        while (distance < farthest && isInk(along, distance + 1))
            ++distance;
    }
    std::sort(reach.begin(), reach.end());
    return reach[2];
}

// How far the ink reaches from each edge, outwards (`direction` 1) or inwards (-1).
struct EdgeReach {
    int Left;
    int Right;
    int Lower;
    int Upper;
};

EdgeReach ReachFromEdges(const WorkGrid& grid, const BoxRect& box, int direction) {
    const auto sideways = [&](int column, int step) {
        return InkReach(box.B - box.T, [&, column, step](int along, int distance) {
            return grid.IsInk(column + step * distance, box.T + along);
        });
    };
    const auto upwards = [&](int row, int step) {
        return InkReach(box.R - box.L, [&, row, step](int along, int distance) {
            return grid.IsInk(box.L + along, row + step * distance);
        });
    };
    return {sideways(box.L, -direction), sideways(box.R, direction), upwards(box.T, -direction),
            upwards(box.B, direction)};
}

BoxRect Grown(const BoxRect& box, const EdgeReach& reach) {
    BoxRect outer = box;
    outer.L = static_cast<std::int16_t>(box.L - reach.Left);
    outer.R = static_cast<std::int16_t>(box.R + reach.Right);
    outer.T = static_cast<std::int16_t>(box.T - reach.Lower);
    outer.B = static_cast<std::int16_t>(box.B + reach.Upper);
    return outer;
}

// One edge of a rectangle against its printed line: how far it was moved outwards to lie on the ink, and how
// far the ink reaches from there.
struct EdgeOnLine {
    int Moved;
    int Outwards;
    int Inwards;

    int Thickness() const { return Outwards + Inwards + 1; }
    bool IsNearMiddle() const { return std::abs(2 * Moved + Outwards - Inwards) <= 2 * 2; }
};

// Where a line is thicker than the thinnest one of the box, text or a ruling touches it and nothing can be
// told.
bool AreEdgesNearMiddle(const std::array<EdgeOnLine, 4>& edges) {
    int outline = edges[0].Thickness();
    for (const EdgeOnLine& edge : edges)
        outline = std::min(outline, edge.Thickness());
    return std::all_of(edges.begin(), edges.end(), [outline](const EdgeOnLine& edge) {
        return edge.Thickness() > outline + 1 || edge.IsNearMiddle();
    });
}

std::array<SideFaces, 4> FacesOf(const WorkGrid& grid, const BoxRect& box) {
    const auto upright = [&](int column, int outwards) {
        return SideFaces(box.B - box.T, [&, column, outwards](int along, int distance) {
            return grid.IsInk(column + outwards * distance, box.T + along);
        });
    };
    const auto level = [&](int row, int outwards) {
        return SideFaces(box.R - box.L, [&, row, outwards](int along, int distance) {
            return grid.IsInk(box.L + along, row + outwards * distance);
        });
    };
    return {upright(box.L, -1), upright(box.R, 1), level(box.T, -1), level(box.B, 1)};
}

// Looks at the sides only where they decide. A letter with a bar on one side and a bow on the other has two
// open corners and bends little; a box has all four alike, or one face of every line dead straight.
void JudgeSides(const WorkGrid& grid, const BoxRect& box, BoxOutline& outline) {
    if (outline.IsClosed() && outline.IsEmpty)
        return;
    using Bend = SideFaces::Bend;
    const Bend bend = outline.OpenCorners == 2 || outline.OpenCorners == 3 ? Bend::None : Bend::OnePixel;
    const std::array<SideFaces, 4> sides = FacesOf(grid, box);
    const auto areStraight = [&](Bend most) {
        return std::all_of(sides.begin(), sides.end(),
                           [most](const SideFaces& side) { return side.IsStraight(most); });
    };
    outline.HasStraightSides = areStraight(bend);
    outline.IsDeadStraight = areStraight(Bend::None);
    if (outline.IsClosed())
        return;
    // Print that runs into a box bends one side and opens one corner.
    const auto bows =
        std::count_if(sides.begin(), sides.end(), [](const SideFaces& side) { return side.IsBow(); });
    outline.HasBow = bows > 1 || (bows == 1 && outline.OpenCorners > 1);
}

bool IsEmptyInside(const WorkGrid& grid, const BoxRect& box) {
    constexpr int emptyPercent = 8;
    const int left = std::max(box.L + InnerMargin(box.R - box.L), 0);
    const int right = std::min(box.R - InnerMargin(box.R - box.L), grid.Columns() - 1);
    const int bottom = std::max(box.T + InnerMargin(box.B - box.T), 0);
    const int top = std::min(box.B - InnerMargin(box.B - box.T), grid.Rows() - 1);
    int ink = 0;
    for (int row = bottom; row <= top; ++row)
        ink += grid.CountInkInRow(row, left, right);
    const int area = std::max(right - left + 1, 0) * std::max(top - bottom + 1, 0);
    return ink * 100 <= emptyPercent * area;
}

int InkDown(const WorkGrid& grid, int column, const BoxRect& box) {
    int ink = 0;
    for (int row = box.T; row <= box.B; ++row)
        ink += grid.IsInk(column, row) ? 1 : 0;
    return ink;
}

int InkAcross(const WorkGrid& grid, int row, const BoxRect& box) {
    int ink = 0;
    for (int column = box.L; column <= box.R; ++column)
        ink += grid.IsInk(column, row) ? 1 : 0;
    return ink;
}

// The place with the most ink among `edge` and the pixels beside it.
template <typename InkAt>
std::int16_t Inkiest(std::int16_t edge, InkAt inkAt) {
    std::int16_t best = edge;
    for (const int place : {edge - 1, edge + 1}) {
        if (inkAt(place) > inkAt(best))
            best = static_cast<std::int16_t>(place);
    }
    return best;
}

// A side that ends where a run ends lies on the pixel after it; here each edge is put onto the ink.
BoxRect LaidOnInk(const WorkGrid& grid, const BoxRect& box) {
    const auto inkDown = [&](int column) { return InkDown(grid, column, box); };
    const auto inkAcross = [&](int row) { return InkAcross(grid, row, box); };
    BoxRect laid = box;
    laid.L = Inkiest(box.L, inkDown);
    laid.R = Inkiest(box.R, inkDown);
    laid.T = Inkiest(box.T, inkAcross);
    laid.B = Inkiest(box.B, inkAcross);
    return laid;
}

}  // namespace

BoxOutline LookAtOutline(const WorkGrid& grid, const BoxRect& rectangle) {
    const BoxRect box = LaidOnInk(grid, rectangle);
    const EdgeReach outwards = ReachFromEdges(grid, box, 1);
    const BoxRect outer = Grown(box, outwards);
    const std::array<Corner, 4> corners = {
        Corner{box.L, box.T, 1, 1, outer.L, outer.T}, Corner{box.R, box.T, -1, 1, outer.R, outer.T},
        Corner{box.L, box.B, 1, -1, outer.L, outer.B}, Corner{box.R, box.B, -1, -1, outer.R, outer.B}};
    BoxOutline outline;
    for (const Corner& corner : corners) {
        if (!AreArmsInked(grid, box, corner) || !IsOuterPixelInked(grid, corner))
            ++outline.OpenCorners;
    }
    outline.IsEmpty = IsEmptyInside(grid, box);
    JudgeSides(grid, box, outline);
    const EdgeReach inwards = ReachFromEdges(grid, box, -1);
    outline.IsOnPrint = AreEdgesNearMiddle({EdgeOnLine{rectangle.L - box.L, outwards.Left, inwards.Left},
                                            EdgeOnLine{box.R - rectangle.R, outwards.Right, inwards.Right},
                                            EdgeOnLine{rectangle.T - box.T, outwards.Lower, inwards.Lower},
                                            EdgeOnLine{box.B - rectangle.B, outwards.Upper, inwards.Upper}});
    return outline;
}

}  // namespace tavrene::boxes
