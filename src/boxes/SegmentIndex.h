#pragma once

#include <vector>

#include "boxes/BoxAnalysis.h"
#include "boxes/PointIndex.h"

namespace tavrene::boxes {

/// The segments of a list by orientation and by their `L` and `T`. The list may grow behind it, but its
/// segments must not move.
class SegmentIndex {
  public:
    /// `width` and `height` are those of the page; what a search costs is counted in `work`.
    SegmentIndex(const std::vector<LineSeg>& segments, int width, int height, WorkMeter& work);

    /// List indices, ascending, of the segments of one orientation whose (`L`, `T`) lies in the rectangle.
    /// The list is reused by the next call.
    const std::vector<int>& Find(Orientation orientation, const SearchRect& searched);

    /// The largest |`R` - `L`| and |`B` - `T`| of the list.
    int WidestSpan() const { return widest_; }
    int HighestSpan() const { return highest_; }

  private:
    const std::vector<LineSeg>& segments_;
    WorkMeter& work_;
    PointIndex horizontal_;
    PointIndex vertical_;
    int widest_ = 0;
    int highest_ = 0;
    std::vector<int> found_;
};

}  // namespace tavrene::boxes
