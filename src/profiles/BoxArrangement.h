#pragma once

#include <span>
#include <vector>

#include "imaging/PageRect.h"
#include "profiles/BoxSelection.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// Pixels of the page that boxes stay on; 0 where it is not known.
struct PageExtent {
    int width = 0;
    int height = 0;
};

enum class Side { Left, Right, Top, Bottom };
enum class Direction { Across, Down };

/// A way over the page in whole pixels.
struct PixelWay {
    int dx = 0;
    int dy = 0;
    bool operator==(const PixelWay&) const = default;
};

/// The part of a way that the page lets all of these boxes go. A box that lies beside it can come back.
PixelWay HeldOnPage(PixelWay wanted, std::span<const OmrBox> boxes, PageExtent page);

/// A place moved onto the page, from whose upper left corner one that is larger than the page stands out.
imaging::PageRect OntoPage(imaging::PageRect place, PageExtent page);

// Each of these changes the selected boxes of a list; deleted ones stay as they are, and none leaves the
// page.

/// All moved by the same whole pixels, as far as the page lets them.
void Move(std::vector<OmrBox>& boxes, const BoxSelection& selected, int dx, int dy, PageExtent page);

/// The right and the lower side of each moved, as far as the page and a pixel of size let it.
void Stretch(std::vector<OmrBox>& boxes, const BoxSelection& selected, int dx, int dy, PageExtent page);

/// All as wide and high as the current one, each around its own middle.
void MakeEqualSize(std::vector<OmrBox>& boxes, const BoxSelection& selected, PageExtent page);

/// That side of all where the current box has it.
void Align(std::vector<OmrBox>& boxes, const BoxSelection& selected, Side side, PageExtent page);

/// The middles at equal distances between the two that are outermost, which stay. Boxes in one line of the
/// other direction (as the boxes of a table's column are) move together.
void Distribute(std::vector<OmrBox>& boxes, const BoxSelection& selected, Direction direction);

/// Copies of boxes at the end of the list, with the names that follow theirs. Gives their numbers.
std::vector<int> AppendCopies(std::vector<OmrBox>& boxes, std::span<const OmrBox> copied);

/// All boxes about as wide and high as this one: print and scan make a pixel or two of difference.
BoxSelection OfSizeOf(const std::vector<OmrBox>& boxes, int number);

/// The boxes whose middles lie in a rectangle of the page.
std::vector<int> BoxesWithin(const std::vector<OmrBox>& boxes, const imaging::PageRect& rect);

/// The rectangle that two boxes span.
imaging::PageRect SpanOf(const OmrBox& a, const OmrBox& b);

}  // namespace tavrene::profiles
