#pragma once

#include <map>
#include <utility>

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// Width and height of a box, in pixels.
struct BoxSize {
    int Width = 0;
    int Height = 0;
    bool operator==(const BoxSize&) const = default;
};

BoxSize SizeOf(const BoxRect& box);

/// Whether two sizes agree within `reach` pixels in both directions.
bool Within(BoxSize a, BoxSize b, int reach);

/// Sizes this many pixels apart are the same size, drawn or scanned a little differently.
inline constexpr int kSameSize = 2;

/// How often each size occurs, or how many votes it has.
class SizeTable {
  public:
    /// Votes within two pixels of a size: as they are, and weighted, the nearer ones more.
    struct Support {
        int Plain = 0;
        int Weighted = 0;
    };

    void Add(BoxSize size, int votes = 1) { votes_[{size.Width, size.Height}] += votes; }

    /// Takes out every size within `reach` of one.
    void Remove(BoxSize size, int reach);

    Support SupportOf(BoxSize size) const;

    /// Entries within two pixels of a size.
    int CountNear(BoxSize size) const { return SupportOf(size).Plain; }

    /// The size with the best weighted support, and that support; 0 by 0 without any.
    std::pair<BoxSize, Support> MostCommon() const;

  private:
    std::map<std::pair<int, int>, int> votes_;
};

}  // namespace tavrene::boxes
