#include "profiles/BoxArrangement.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "profiles/BoxNaming.h"
#include "profiles/BoxPlace.h"

namespace tavrene::profiles {
namespace {

using imaging::PageRect;

// Print and scan change the size of a box by so much.
constexpr double kJitter = 0.1;
constexpr double kLeastJitter = 2;

std::vector<OmrBox*> Picked(std::vector<OmrBox>& boxes, const BoxSelection& selected) {
    std::vector<OmrBox*> picked;
    for (const int number : selected.Numbers()) {
        OmrBox& box = boxes[static_cast<std::size_t>(number) - 1];
        if (box.Checked)
            picked.push_back(&box);
    }
    return picked;
}

const OmrBox& CurrentOf(const std::vector<OmrBox>& boxes, const BoxSelection& selected) {
    return boxes[static_cast<std::size_t>(selected.Current()) - 1];
}

// How far two opposite sides may go together, from below 0 to above it, within an extent that is 0 where it
// is not known.
struct Leeway {
    int least = std::numeric_limits<int>::min();
    int most = std::numeric_limits<int>::max();

    void Narrow(int a, int b, int extent) {
        const int last = extent > 0 ? extent : std::numeric_limits<std::int16_t>::max();
        least = std::max(least, std::min(0, -std::min(a, b)));
        most = std::min(most, std::max(0, last - std::max(a, b)));
    }
    int Held(int by) const { return std::clamp(by, least, most); }
};

// Moves the farther one of two opposite sides.
void MoveFarSide(std::int16_t& a, std::int16_t& b, int by, int extent) {
    const int last = extent > 0 ? extent : std::numeric_limits<std::int16_t>::max();
    std::int16_t& farther = a > b ? a : b;
    farther =
        static_cast<std::int16_t>(std::clamp(farther + by, std::min(a, b) + 1, std::max<int>(farther, last)));
}

bool IsAlike(double a, double b) {
    return std::abs(a - b) <= std::max(kLeastJitter, kJitter * b);
}

}  // namespace

PixelWay HeldOnPage(PixelWay wanted, std::span<const OmrBox> boxes, PageExtent page) {
    Leeway across;
    Leeway down;
    for (const OmrBox& box : boxes) {
        across.Narrow(box.L, box.R, page.width);
        down.Narrow(box.T, box.B, page.height);
    }
    return {across.Held(wanted.dx), down.Held(wanted.dy)};
}

PageRect OntoPage(PageRect place, PageExtent page) {
    const auto held = [](double start, double length, int extent) {
        const double last = extent > 0 ? extent : std::numeric_limits<std::int16_t>::max();
        return std::max(0.0, std::min(start, last - length));
    };
    place.left = held(place.left, place.width, page.width);
    place.top = held(place.top, place.height, page.height);
    return place;
}

void Move(std::vector<OmrBox>& boxes, const BoxSelection& selected, int dx, int dy, PageExtent page) {
    const std::vector<OmrBox*> picked = Picked(boxes, selected);
    std::vector<OmrBox> before;
    before.reserve(picked.size());
    for (const OmrBox* const box : picked)
        before.push_back(*box);
    const PixelWay way = HeldOnPage({dx, dy}, before, page);
    const auto shift = [](std::int16_t& edge, int by) { edge = static_cast<std::int16_t>(edge + by); };
    for (OmrBox* const box : picked) {
        shift(box->L, way.dx);
        shift(box->R, way.dx);
        shift(box->T, way.dy);
        shift(box->B, way.dy);
    }
}

void Stretch(std::vector<OmrBox>& boxes, const BoxSelection& selected, int dx, int dy, PageExtent page) {
    for (OmrBox* const box : Picked(boxes, selected)) {
        MoveFarSide(box->L, box->R, dx, page.width);
        MoveFarSide(box->T, box->B, dy, page.height);
    }
}

void MakeEqualSize(std::vector<OmrBox>& boxes, const BoxSelection& selected, PageExtent page) {
    const PageRect size = PlaceOf(CurrentOf(boxes, selected));
    for (OmrBox* const box : Picked(boxes, selected)) {
        const PageRect place = PlaceOf(*box);
        if (place.width == size.width && place.height == size.height)
            continue;
        const auto start = [](double from, double length, double wanted) {
            return std::floor(from + (length - wanted) / 2);
        };
        PutAt(*box, OntoPage({start(place.left, place.width, size.width),
                              start(place.top, place.height, size.height), size.width, size.height},
                             page));
    }
}

void Align(std::vector<OmrBox>& boxes, const BoxSelection& selected, Side side, PageExtent page) {
    const PageRect to = PlaceOf(CurrentOf(boxes, selected));
    for (OmrBox* const box : Picked(boxes, selected)) {
        PageRect place = PlaceOf(*box);
        switch (side) {
            case Side::Left:
                place.left = to.left;
                break;
            case Side::Right:
                place.left = to.left + to.width - place.width;
                break;
            case Side::Top:
                place.top = to.top;
                break;
            case Side::Bottom:
                place.top = to.top + to.height - place.height;
                break;
        }
        if (place != PlaceOf(*box))
            PutAt(*box, OntoPage(place, page));
    }
}

void Distribute(std::vector<OmrBox>& boxes, const BoxSelection& selected, Direction direction) {
    const auto middle = [direction](const OmrBox* box) {
        const BoxMiddle at = MiddleOf(*box);
        return direction == Direction::Across ? at.x : at.y;
    };
    std::vector<OmrBox*> picked = Picked(boxes, selected);
    std::sort(picked.begin(), picked.end(),
              [&](const auto* a, const auto* b) { return middle(a) < middle(b); });
    std::vector<std::vector<OmrBox*>> lines;
    for (OmrBox* const box : picked) {
        const PageRect place = PlaceOf(*box);
        const double reach = (direction == Direction::Across ? place.width : place.height) / 2;
        if (lines.empty() || middle(box) - middle(lines.back().front()) > reach)
            lines.emplace_back();
        lines.back().push_back(box);
    }
    if (lines.size() < 3)
        return;
    const double first = middle(lines.front().front());
    const double step = (middle(lines.back().front()) - first) / static_cast<double>(lines.size() - 1);
    for (std::size_t line = 1; line + 1 < lines.size(); ++line) {
        const double by = first + step * static_cast<double>(line) - middle(lines[line].front());
        for (OmrBox* const box : lines[line]) {
            PageRect place = PlaceOf(*box);
            (direction == Direction::Across ? place.left : place.top) += std::nearbyint(by);
            PutAt(*box, place);
        }
    }
}

std::vector<int> AppendCopies(std::vector<OmrBox>& boxes, std::span<const OmrBox> copied) {
    std::vector<int> numbers;
    for (OmrBox copy : copied) {
        copy.Name = NextName(boxes, copy.Name);
        boxes.push_back(std::move(copy));
        numbers.push_back(static_cast<int>(boxes.size()));
    }
    return numbers;
}

BoxSelection OfSizeOf(const std::vector<OmrBox>& boxes, int number) {
    const PageRect size = PlaceOf(boxes[static_cast<std::size_t>(number) - 1]);
    std::vector<int> numbers = KeptNumbers(boxes);
    std::erase_if(numbers, [&](int other) {
        const PageRect place = PlaceOf(boxes[static_cast<std::size_t>(other) - 1]);
        return !IsAlike(place.width, size.width) || !IsAlike(place.height, size.height);
    });
    return {std::move(numbers), number};
}

std::vector<int> BoxesWithin(const std::vector<OmrBox>& boxes, const PageRect& rect) {
    std::vector<int> numbers = KeptNumbers(boxes);
    std::erase_if(numbers, [&](int number) {
        const BoxMiddle at = MiddleOf(boxes[static_cast<std::size_t>(number) - 1]);
        return at.x < rect.left || at.x > rect.left + rect.width || at.y < rect.top ||
               at.y > rect.top + rect.height;
    });
    return numbers;
}

PageRect SpanOf(const OmrBox& a, const OmrBox& b) {
    const PageRect one = PlaceOf(a);
    const PageRect other = PlaceOf(b);
    const double left = std::min(one.left, other.left);
    const double top = std::min(one.top, other.top);
    return {left, top, std::max(one.left + one.width, other.left + other.width) - left,
            std::max(one.top + one.height, other.top + other.height) - top};
}

}  // namespace tavrene::profiles
