#pragma once

#include <span>
#include <vector>

#include "imaging/WorkGrid.h"

namespace tavrene::boxes {

/// Bits that stand for the pixels of ink, or for some of them, in lines that run one way: the rows of the
/// page, or its columns. `line` and `along` of a place are then row and column, or column and row.
struct LineBits {
    imaging::WorkGrid Bits;

    int Lines() const { return Bits.Rows(); }
    int Length() const { return Bits.Columns(); }

    /// Places from `first` to `last`, both inclusive, with a bit on the line or on one beside it: what slants
    /// or is worn strays by a pixel. Places and lines outside the page count as empty.
    int CountNear(int line, int first, int last) const;
};

/// Where ink ends towards the inside of a box, seen from each of its four walls. The inside of a box is
/// bounded by such faces however thick its lines are, whatever shadow or neighbour lies behind them, and on
/// every page they are few beside the ink.
struct InnerFaces {
    explicit InnerFaces(const imaging::WorkGrid& page);

    imaging::WorkGrid Columns;  ///< The page with columns and rows exchanged.
    LineBits Left;              ///< By column: ink with background to its right.
    LineBits Right;             ///< By column: ink with background to its left.
    LineBits Lower;             ///< By row: ink with background above (on a higher row).
    LineBits Upper;             ///< By row: ink with background below.
};

}  // namespace tavrene::boxes
