#include "boxes/BoxFilter.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <tuple>

namespace tavrene::boxes {
namespace {

constexpr int kCandidateReach = 2;
constexpr int kKeepReach = 3;

// A closed outline says more about the sizes of a form than one with an open corner, which may be a worn
// print or a letter.
constexpr int kClosedVote = 8;
constexpr int kOpenVote = 1;

// Fewer boxes than this, or a share this small, are letters by chance and no second kind of box.
constexpr int kSecondSizeVotes = 3 * kClosedVote;
constexpr int kSecondSizeShare = 16;

bool Within(BoxSize a, BoxSize b, int reach) {
    return std::abs(a.Width - b.Width) <= reach && std::abs(a.Height - b.Height) <= reach;
}

// One entry a size that occurs, with its votes.
using SizeTable = std::map<std::pair<int, int>, int>;

SizeTable CountSizes(const std::vector<BoxRect>& boxes) {
    SizeTable table;
    for (const BoxRect& box : boxes) {
        const BoxSize size = SizeOf(box);
        if (box.Valid != 0)
            table[{size.Width, size.Height}] += box.Kind == 0 ? kClosedVote : kOpenVote;
    }
    return table;
}

// Votes within two pixels of a size: as they are, and weighted, the nearer ones more.
struct Support {
    int Plain = 0;
    int Weighted = 0;
};

Support SupportOf(const SizeTable& table, BoxSize size) {
    Support support;
    for (int width = size.Width - kCandidateReach; width <= size.Width + kCandidateReach; ++width) {
        const auto end = table.upper_bound({width, size.Height + kCandidateReach});
        for (auto entry = table.lower_bound({width, size.Height - kCandidateReach}); entry != end; ++entry) {
            const int distance =
                std::max(std::abs(width - size.Width), std::abs(entry->first.second - size.Height));
            support.Plain += entry->second;
            support.Weighted += entry->second * (2 * kCandidateReach - distance);
        }
    }
    return support;
}

struct Choice {
    BoxSize Size;
    Support Votes;
};

Choice MostCommonSize(const SizeTable& table) {
    Choice best;
    for (const auto& [key, votes] : table) {
        const BoxSize size{key.first, key.second};
        const Support support = SupportOf(table, size);
        if (support.Weighted > best.Votes.Weighted)
            best = {size, support};
    }
    return best;
}

class Filter {
  public:
    explicit Filter(const ReferenceSizes& sizes) : sizes_(sizes) {}

    // Boxes are judged from the last to the first, so that those already judged are the later ones.
    bool Keeps(const BoxRect& box) {
        const bool repeated = !seen_.insert({box.L, box.T, box.R, box.B}).second;
        const BoxSize size = SizeOf(box);
        if (box.Valid == 0 || size.Height < 1 || size.Width < 1)
            return box.Valid != 0;
        if (IsNearReference(size, kCandidateReach))
            return !repeated;
        return box.Mark == 0 && IsNearReference(size, kKeepReach);
    }

  private:
    bool IsNearReference(BoxSize size, int reach) const {
        return Within(size, sizes_.MostCommon, reach) || Within(size, sizes_.Second, reach);
    }

    ReferenceSizes sizes_;
    std::set<std::tuple<int, int, int, int>> seen_;
};

}  // namespace

BoxSize SizeOf(const BoxRect& box) {
    return {std::abs(box.R - box.L), std::abs(box.B - box.T)};
}

ReferenceSizes ChooseReferenceSizes(const std::vector<BoxRect>& boxes) {
    SizeTable table = CountSizes(boxes);
    const Choice common = MostCommonSize(table);
    std::erase_if(table, [&](const auto& entry) {
        return Within({entry.first.first, entry.first.second}, common.Size, kKeepReach);
    });
    const Choice second = MostCommonSize(table);
    const int votes = second.Votes.Plain;
    const bool isReal = votes >= std::min(kSecondSizeVotes, common.Votes.Plain) &&
                        votes * kSecondSizeShare >= common.Votes.Plain;
    return {common.Size, isReal ? second.Size : common.Size};
}

void FilterBoxes(BoxAnalysis& analysis) {
    std::vector<BoxRect>& boxes = analysis.Boxes;
    Filter filter(ChooseReferenceSizes(boxes));
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
        box->Valid = filter.Keeps(*box) ? std::int16_t{-1} : std::int16_t{0};
    std::erase_if(boxes, [](const BoxRect& box) { return box.Valid == 0; });
}

}  // namespace tavrene::boxes
