#include "recognition/precise/Alignment.h"

#include <algorithm>
#include <cmath>

namespace tavrene::recognition::precise {
namespace {

constexpr double kNearMap = 3;
constexpr double kNearNeighbours = 7;
constexpr double kAgreement = 2;
constexpr std::size_t kNeighbours = 6;
constexpr std::size_t kLeastNeighbours = 3;
constexpr double kWorthBending = 0.3;

struct Offset {
    double x = 0;
    double y = 0;
};

double MiddleOf(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// What the map leaves to explain at the nearest boxes that are seen: the median of their offsets.
std::optional<Offset> OffsetAround(std::span<const SoughtBox> boxes, const Alignment& alignment,
                                   std::size_t index) {
    std::vector<std::pair<double, std::size_t>> near;
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        if (k == index || !alignment.seen[k])
            continue;
        const double dx = boxes[k].place.x - boxes[index].place.x;
        const double dy = boxes[k].place.y - boxes[index].place.y;
        near.emplace_back(dx * dx + dy * dy, k);
    }
    if (near.size() < kLeastNeighbours)
        return std::nullopt;
    const std::size_t count = std::min(kNeighbours, near.size());
    std::partial_sort(near.begin(), near.begin() + static_cast<std::ptrdiff_t>(count), near.end());
    std::vector<double> x;
    std::vector<double> y;
    for (std::size_t k = 0; k < count; ++k) {
        const CellPoint mapped = alignment.map(boxes[near[k].second].place);
        x.push_back(alignment.seen[near[k].second]->x - mapped.x);
        y.push_back(alignment.seen[near[k].second]->y - mapped.y);
    }
    return Offset{MiddleOf(x), MiddleOf(y)};
}

// Boxes off the map that lie as their neighbours do: paper bends slowly.
void AddBentOnes(std::span<const SoughtBox> boxes, Alignment& alignment) {
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        if (alignment.seen[k])
            continue;
        const CellPoint mapped = alignment.map(boxes[k].place);
        if (!boxes[k].candidates->Nearest(mapped, kNearNeighbours))
            continue;
        const std::optional<Offset> offset = OffsetAround(boxes, alignment, k);
        if (!offset)
            continue;
        const auto seen =
            boxes[k].candidates->Nearest({mapped.x + offset->x, mapped.y + offset->y}, kAgreement);
        if (seen && std::hypot(seen->x - mapped.x, seen->y - mapped.y) <= kNearNeighbours) {
            alignment.seen[k] = seen;
            ++alignment.found;
        }
    }
}

}  // namespace

double LowerBound(std::size_t found, std::size_t of) {
    if (of == 0)
        return 0;
    constexpr double z = 1.96;
    const auto n = static_cast<double>(of);
    const double share = static_cast<double>(found) / n;
    const double spread = z * std::sqrt(share * (1 - share) / n + z * z / (4 * n * n));
    return (share + z * z / (2 * n) - spread) / (1 + z * z / n);
}

Alignment Align(std::span<const SoughtBox> boxes, const PageMap& map) {
    Alignment alignment;
    alignment.map = map;
    alignment.seen.resize(boxes.size());
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        alignment.seen[k] = boxes[k].candidates->Nearest(map(boxes[k].place), kNearMap);
        if (alignment.seen[k])
            ++alignment.found;
    }
    const auto count = static_cast<double>(boxes.size());
    if (static_cast<double>(alignment.found) >= kWorthBending * count) {
        // Once more with those that are neighbours now.
        const std::size_t before = alignment.found;
        AddBentOnes(boxes, alignment);
        if (alignment.found > before)
            AddBentOnes(boxes, alignment);
    }
    alignment.share = static_cast<double>(alignment.found) / count;
    alignment.bound = LowerBound(alignment.found, boxes.size());
    return alignment;
}

}  // namespace tavrene::recognition::precise
