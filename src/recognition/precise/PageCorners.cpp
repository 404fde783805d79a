#include "recognition/precise/PageCorners.h"

namespace tavrene::recognition::precise {
namespace {

using Word = BitPlane::Word;

template <typename Combine>
BitPlane RowByRow(const BitPlane& plane, Combine combine) {
    BitPlane result(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        Word* const to = result.Row(row);
        for (int index = 0; index < plane.Words(); ++index)
            to[index] = combine(row, index);
        result.TrimRow(row);
    }
    return result;
}

// Level strokes, thickened by the play, with gaps bridged: set where the following `kStroke` cells to the
// right are stroke.
BitPlane StrokesToTheRight(const BitPlane& cells) {
    const BitPlane thick = RowByRow(cells, [&cells](int row, int index) {
        return cells.Row(row - 1)[index] | cells.Row(row)[index] | cells.Row(row + 1)[index];
    });
    const BitPlane reached = RowByRow(thick, [&thick](int row, int index) {
        const Word* const r = thick.Row(row);
        return r[index] | FromLeft(r, index, 1) | FromLeft(r, index, 2);
    });
    const BitPlane closed = RowByRow(reached, [&reached](int row, int index) {
        const Word* const r = reached.Row(row);
        return r[index] & FromRight(r, index, 1) & FromRight(r, index, 2);
    });
    const BitPlane pairs = RowByRow(closed, [&closed](int row, int index) {
        const Word* const r = closed.Row(row);
        return r[index] & FromRight(r, index, 1);
    });
    return RowByRow(pairs, [&pairs](int row, int index) {
        const Word* const r = pairs.Row(row);
        return r[index] & FromRight(r, index, 2) & FromRight(r, index, 4);
    });
}

// The same for upright strokes and the rows above.
BitPlane StrokesUpwards(const BitPlane& cells) {
    const BitPlane thick = RowByRow(cells, [&cells](int row, int index) {
        const Word* const r = cells.Row(row);
        return r[index] | FromRight(r, index, 1) | FromLeft(r, index, 1);
    });
    const BitPlane reached = RowByRow(thick, [&thick](int row, int index) {
        return thick.Row(row)[index] | thick.Row(row - 1)[index] | thick.Row(row - 2)[index];
    });
    const BitPlane closed = RowByRow(reached, [&reached](int row, int index) {
        return reached.Row(row)[index] & reached.Row(row + 1)[index] & reached.Row(row + 2)[index];
    });
    const BitPlane pairs = RowByRow(closed, [&closed](int row, int index) {
        return closed.Row(row)[index] & closed.Row(row + 1)[index];
    });
    return RowByRow(pairs, [&pairs](int row, int index) {
        return pairs.Row(row)[index] & pairs.Row(row + 2)[index] & pairs.Row(row + 4)[index];
    });
}

}  // namespace

PageCorners FindCorners(const BitPlane& cells) {
    const BitPlane right = StrokesToTheRight(cells);
    const BitPlane up = StrokesUpwards(cells);
    constexpr auto back = static_cast<unsigned>(kStroke - 1);
    const auto leftAt = [&right](int row, int index) { return FromLeft(right.Row(row), index, back); };
    const auto downAt = [&up](int row, int index) { return up.Row(row - (kStroke - 1))[index]; };
    PageCorners corners;
    corners.lowerLeft =
        RowByRow(cells, [&](int row, int index) { return right.Row(row)[index] & up.Row(row)[index]; });
    corners.lowerRight =
        RowByRow(cells, [&](int row, int index) { return leftAt(row, index) & up.Row(row)[index]; });
    corners.upperLeft =
        RowByRow(cells, [&](int row, int index) { return right.Row(row)[index] & downAt(row, index); });
    corners.upperRight =
        RowByRow(cells, [&](int row, int index) { return leftAt(row, index) & downAt(row, index); });
    return corners;
}

}  // namespace tavrene::recognition::precise
