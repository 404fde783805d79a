#include "boxes/BoxOutline.h"

#include <algorithm>

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

// Far enough for the curve of a letter to leave the edge, near enough that a worn print mostly holds.
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

// Whether both arms of the corner at (`column`, `row`) are inked; they point by `inwardX` and `inwardY`.
bool IsClosed(const WorkGrid& grid, const BoxRect& box, int column, int row, int inwardX, int inwardY) {
    for (int along = 0; along <= ArmLength(box.R - box.L); ++along) {
        if (!InkBeside(grid, column + along * inwardX, row, 0, 1))
            return false;
    }
    for (int along = 0; along <= ArmLength(box.B - box.T); ++along) {
        if (!InkBeside(grid, column, row + along * inwardY, 1, 0))
            return false;
    }
    return true;
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
    BoxOutline outline;
    for (const bool isRight : {false, true}) {
        for (const bool isUpper : {false, true}) {
            if (!IsClosed(grid, box, isRight ? box.R : box.L, isUpper ? box.B : box.T, isRight ? -1 : 1,
                          isUpper ? -1 : 1))
                ++outline.OpenCorners;
        }
    }
    outline.IsEmpty = IsEmptyInside(grid, box);
    return outline;
}

}  // namespace tavrene::boxes
