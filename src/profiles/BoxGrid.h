#pragma once

#include <optional>
#include <vector>

#include "imaging/PageRect.h"
#include "imaging/WorkGrid.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// How many boxes a grid has down and across the page.
struct GridShape {
    int rows = 1;
    int columns = 1;
    bool operator==(const GridShape&) const = default;
};

/// The places of a grid's boxes row by row, all as large as the first one, which stands in the corner at the
/// upper left; the middle of the last one is in the corner at the lower right.
std::vector<imaging::PageRect> PlacesOfGrid(const imaging::PageRect& first, const imaging::PageRect& last,
                                            GridShape shape);

/// The rows and columns of which the page shows the most printed outlines between these two boxes: at least
/// one of each, two where the boxes lie apart.
GridShape ShapeInPrint(const imaging::WorkGrid& page, const imaging::PageRect& first,
                       const imaging::PageRect& last);

/// Where the outline is printed that a box roughly stands on: each side is at most a quarter of the box away,
/// and mostly ink. Nothing where there is none.
std::optional<imaging::PageRect> OutlineUnder(const imaging::WorkGrid& page, const imaging::PageRect& place);

}  // namespace tavrene::profiles
