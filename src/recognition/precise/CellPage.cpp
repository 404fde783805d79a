#include "recognition/precise/CellPage.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace tavrene::recognition::precise {
namespace {

constexpr double kSmallestBox = 10;
constexpr int kMostHalvings = 4;

// The outer cells of what is solid: a black edge or a filled box is full of corners inside.
BitPlane Hollowed(const BitPlane& cells) {
    BitPlane hollow = Eroded2(cells);
    for (int row = 0; row < cells.Height(); ++row) {
        for (int index = 0; index < cells.Words(); ++index)
            hollow.Row(row)[index] = cells.Row(row)[index] & ~hollow.Row(row)[index];
    }
    return hollow;
}

PageCorners WidenedCorners(const BitPlane& cells) {
    const PageCorners corners = FindCorners(Hollowed(cells));
    return {Dilated(corners.lowerLeft, 1), Dilated(corners.lowerRight, 1), Dilated(corners.upperLeft, 1),
            Dilated(corners.upperRight, 1)};
}

int InSteps(double cells) {
    return std::max(4, 2 * static_cast<int>(std::lround(cells / 2)));
}

}  // namespace

const CandidatePlaces& CellPage::PlacesFor(double width, double height) {
    const std::pair size{InSteps(width), InSteps(height)};
    const auto known = places_.find(size);
    if (known != places_.end())
        return known->second;
    if (!corners_)
        corners_ = WidenedCorners(cells_);
    return places_
        .emplace(std::piecewise_construct, std::forward_as_tuple(size),
                 std::forward_as_tuple(*corners_, size.first, size.second))
        .first->second;
}

const CellPage::Spread& CellPage::SpreadBy(int reach) {
    const auto known = near_.find(reach);
    if (known != near_.end())
        return known->second;
    Spread spread{Dilated(cells_, reach), 0};
    const double area = static_cast<double>(cells_.Width()) * cells_.Height();
    spread.share = area > 0 ? static_cast<double>(spread.plane.Count()) / area : 0;
    return near_.emplace(reach, std::move(spread)).first->second;
}

const BitPlane& CellPage::NearInk(int reach) {
    return SpreadBy(reach).plane;
}

double CellPage::NearInkShare(int reach) {
    return SpreadBy(reach).share;
}

CellPage& CellPages::ForBoxesOf(double boxSize) {
    std::size_t halvings = 0;
    for (double size = boxSize / 2; size >= kSmallestBox && halvings < kMostHalvings; size /= 2)
        ++halvings;
    while (scales_.size() <= halvings) {
        const bool first = scales_.empty();
        BitPlane cells = first ? page_ : Halved(scales_.back()->Cells());
        const int factor = first ? 1 : scales_.back()->Factor() * 2;
        scales_.push_back(std::make_unique<CellPage>(std::move(cells), factor));
    }
    return *scales_[halvings];
}

}  // namespace tavrene::recognition::precise
