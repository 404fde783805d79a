#pragma once

#include <optional>
#include <span>
#include <vector>

#include "imaging/WorkGrid.h"
#include "profiles/BoxArrangement.h"

namespace tavrene::profiles {

/// Whether a box of the list stands at a place, so that another one there would lie over it.
bool IsTaken(const std::vector<OmrBox>& boxes, const imaging::PageRect& place);

/// Where the outline is printed on which a box roughly stands; the place itself where there is none, or no
/// print is known.
imaging::PageRect InPrint(const imaging::WorkGrid* print, const imaging::PageRect& place);

/// How far copies go to stand over no box of the list: by whole boxes down and to the right.
PixelWay WayToFreePlace(const std::vector<OmrBox>& boxes, std::span<const OmrBox> copied);

/// How far copies go to the next outline that is printed below the first of them and has no box yet, or else
/// to just below them.
PixelWay WayDown(const std::vector<OmrBox>& boxes, std::span<const OmrBox> copied,
                 const imaging::WorkGrid* print);

/// The part of a way that the page lets copies go; nothing where its edge would hold them over other boxes.
std::optional<PixelWay> WayOfCopies(PixelWay wanted, const std::vector<OmrBox>& boxes,
                                    std::span<const OmrBox> copied, PageExtent page);

}  // namespace tavrene::profiles
