#include "boxes/SegmentIndex.h"

#include <algorithm>
#include <bit>
#include <cstdlib>

namespace tavrene::boxes {
namespace {

// Near the usual reaches, so that a searched touches about nine cells.
constexpr int kCellSize = 32;

}  // namespace

SegmentIndex::SegmentIndex(const std::vector<LineSeg>& segments, int width, int height, WorkMeter& work)
    : segments_(segments),
      work_(work),
      horizontal_(width, height, kCellSize),
      vertical_(width, height, kCellSize) {
    int number = 0;
    for (const LineSeg& segment : segments) {
        (segment.IsVertical() ? vertical_ : horizontal_).Add(number++, segment.L, segment.T);
        widest_ = std::max(widest_, std::abs(segment.R - segment.L));
        highest_ = std::max(highest_, std::abs(segment.B - segment.T));
    }
}

const std::vector<int>& SegmentIndex::Find(Orientation orientation, const SearchRect& searched) {
    found_.clear();
    const PointIndex& index = orientation == Orientation::Vertical ? vertical_ : horizontal_;
    work_.Spend(index.VisitNear(searched, [&](int number) {
        const LineSeg& segment = segments_[static_cast<std::size_t>(number)];
        if (searched.Contains(segment.L, segment.T))
            found_.push_back(number);
    }));
    // Sorting takes the longest where there is much to sort.
    work_.Spend(found_.size() * static_cast<std::size_t>(std::bit_width(found_.size())));
    std::sort(found_.begin(), found_.end());
    return found_;
}

}  // namespace tavrene::boxes
