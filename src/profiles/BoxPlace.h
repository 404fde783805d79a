#pragma once

#include <algorithm>
#include <cmath>

#include "app/Numeric.h"
#include "imaging/PageRect.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// Where a box stands on the page. A document written by hand may have its edges in the other order; it
/// stands at the same place.
inline imaging::PageRect PlaceOf(const OmrBox& box) {
    return {static_cast<double>(std::min(box.L, box.R)), static_cast<double>(std::min(box.T, box.B)),
            std::abs(static_cast<double>(box.R - box.L)), std::abs(static_cast<double>(box.B - box.T))};
}

inline bool IsSamePlace(const OmrBox& a, const OmrBox& b) {
    return PlaceOf(a) == PlaceOf(b);
}

/// Puts a box elsewhere, on whole pixels. One that stands there already keeps the order of its edges.
inline void PutAt(OmrBox& box, const imaging::PageRect& place) {
    if (PlaceOf(box) == place)
        return;
    box.L = app::RoundToInt16(place.left);
    box.T = app::RoundToInt16(place.top);
    box.R = app::RoundToInt16(place.left + place.width);
    box.B = app::RoundToInt16(place.top + place.height);
}

/// The middle of a box, in the page frame.
struct BoxMiddle {
    double x = 0;
    double y = 0;
};

inline BoxMiddle MiddleOf(const OmrBox& box) {
    return {(box.L + box.R) / 2.0, (box.T + box.B) / 2.0};
}

}  // namespace tavrene::profiles
