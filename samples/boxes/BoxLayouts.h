#pragma once

#include <span>

#include "boxes/BoxSheet.h"

namespace tavrene::samples {

/// One way to lay out the boxes of a form.
struct BoxLayout {
    const char* Name;
    bool TwoSizes;  ///< Uses the second size as well.

    /// Paints the form; `second` is to be left alone without `TwoSizes`.
    void (*Paint)(BoxSheet& sheet, const OuterSize& size, const OuterSize& second);
};

/// Layouts that box finding is meant for: rows, grids, a column, text all around, tables, frames, long
/// rulings that run along a side, two sizes.
std::span<const BoxLayout> UsualLayouts();

/// Strips of boxes that share a side with their neighbour.
const BoxLayout& SharedSides();

/// Boxes of which one side is part of a long ruling.
const BoxLayout& SidesOnRulings();

/// Boxes whose lower left or lower right corner is near the page's diagonal, where column and row agree.
const BoxLayout& OnTheDiagonal();

/// Blocks of boxes that share their sides with all neighbours.
const BoxLayout& JoinedGrids();

/// Many boxes of one size and a few, three to eight in a hundred, of a second one.
const BoxLayout& SmallSecondSize();

/// Pages without any box: text of every size, ovals to be filled in, tables with text in their cells.
std::span<const BoxLayout> BoxlessLayouts();

/// A page full of small text with columns of boxes; `lines` of text are spread over the page.
void PaintDensePage(BoxSheet& sheet, const OuterSize& size, int lines);

}  // namespace tavrene::samples
