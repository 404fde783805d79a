#include "profiles/CopyPlaces.h"

#include <algorithm>
#include <cmath>

#include "profiles/BoxGrid.h"
#include "profiles/BoxPlace.h"

namespace tavrene::profiles {
namespace {

using imaging::PageRect;

// Copies go to an outline below that is at most so many heights of a box away.
constexpr double kReachDown = 3;

bool MeetOthers(const std::vector<OmrBox>& boxes, std::span<const OmrBox> copied, PixelWay way) {
    return std::ranges::any_of(copied, [&](const OmrBox& box) {
        PageRect place = PlaceOf(box);
        place.left += way.dx;
        place.top += way.dy;
        return IsTaken(boxes, place);
    });
}

}  // namespace

bool IsTaken(const std::vector<OmrBox>& boxes, const PageRect& place) {
    return std::ranges::any_of(boxes, [&](const OmrBox& box) {
        const BoxMiddle middle = MiddleOf(box);
        return box.Checked && std::abs(middle.x - place.left - place.width / 2) < place.width / 2 &&
               std::abs(middle.y - place.top - place.height / 2) < place.height / 2;
    });
}

PageRect InPrint(const imaging::WorkGrid* print, const PageRect& place) {
    return print == nullptr ? place : OutlineUnder(*print, place).value_or(place);
}

PixelWay WayToFreePlace(const std::vector<OmrBox>& boxes, std::span<const OmrBox> copied) {
    constexpr int kMost = 100;
    const PageRect first = PlaceOf(copied.front());
    PixelWay way;
    for (int step = 0; step < kMost && MeetOthers(boxes, copied, way); ++step) {
        way.dx += static_cast<int>(first.width);
        way.dy += static_cast<int>(first.height);
    }
    return way;
}

PixelWay WayDown(const std::vector<OmrBox>& boxes, std::span<const OmrBox> copied,
                 const imaging::WorkGrid* print) {
    const PageRect first = PlaceOf(copied.front());
    double bottom = 0;
    for (const OmrBox& box : copied)
        bottom = std::max<double>(bottom, std::max(box.T, box.B));
    const double below = bottom - first.top;
    for (double down = below; down < below + kReachDown * first.height; down += 2) {
        const PageRect place = {first.left, first.top + down, first.width, first.height};
        const PageRect printed = InPrint(print, place);
        if (printed != place && printed.top > bottom && !IsTaken(boxes, printed))
            return {0, static_cast<int>(printed.top - first.top)};
    }
    return {0, static_cast<int>(below + first.height / 2)};
}

std::optional<PixelWay> WayOfCopies(PixelWay wanted, const std::vector<OmrBox>& boxes,
                                    std::span<const OmrBox> copied, PageExtent page) {
    const PixelWay held = HeldOnPage(wanted, copied, page);
    return held != wanted && MeetOthers(boxes, copied, held) ? std::nullopt : std::optional(held);
}

}  // namespace tavrene::profiles
