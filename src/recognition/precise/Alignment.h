#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "recognition/precise/PageMap.h"

namespace tavrene::recognition::precise {

/// A box of a profile on the way to its place on a page: its middle where the profile has it, in cells.
struct SoughtBox {
    CellPoint place;
    const CandidatePlaces* candidates = nullptr;
};

/// One way to lay a profile's boxes on a page.
struct Alignment {
    PageMap map;
    std::vector<std::optional<CellPoint>> seen;  ///< Where each box's candidate is; none where it has none.
    std::size_t found = 0;
    double share = 0;       ///< Of the boxes that have a candidate where they should.
    double bound = 0;       ///< The lower bound of that share, so that few boxes count less.
    std::size_t tried = 0;  ///< Maps that were looked at to find this one.
};

/// How the boxes lie under a given map.
Alignment Align(std::span<const SoughtBox> boxes, const PageMap& map);

/// The lower bound of a share (Wilson 1927, 95 %), so that one of one weighs less than ninety of a hundred.
double LowerBound(std::size_t found, std::size_t of);

}  // namespace tavrene::recognition::precise
