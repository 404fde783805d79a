#include "boxes/SizeTable.h"

#include <algorithm>
#include <cstdlib>

namespace tavrene::boxes {

BoxSize SizeOf(const BoxRect& box) {
    return {std::abs(box.R - box.L), std::abs(box.B - box.T)};
}

bool Within(BoxSize a, BoxSize b, int reach) {
    return std::abs(a.Width - b.Width) <= reach && std::abs(a.Height - b.Height) <= reach;
}

void SizeTable::Remove(BoxSize size, int reach) {
    std::erase_if(votes_, [&](const auto& entry) {
        return Within({entry.first.first, entry.first.second}, size, reach);
    });
}

SizeTable::Support SizeTable::SupportOf(BoxSize size) const {
    Support support;
    for (int width = size.Width - kSameSize; width <= size.Width + kSameSize; ++width) {
        const auto end = votes_.upper_bound({width, size.Height + kSameSize});
        for (auto entry = votes_.lower_bound({width, size.Height - kSameSize}); entry != end; ++entry) {
            const int distance =
                std::max(std::abs(width - size.Width), std::abs(entry->first.second - size.Height));
            support.Plain += entry->second;
            support.Weighted += entry->second * (2 * kSameSize - distance);
        }
    }
    return support;
}

std::pair<BoxSize, SizeTable::Support> SizeTable::MostCommon() const {
    std::pair<BoxSize, Support> best;
    for (const auto& [key, votes] : votes_) {
        const BoxSize size{key.first, key.second};
        const Support support = SupportOf(size);
        if (support.Weighted > best.second.Weighted)
            best = {size, support};
    }
    return best;
}

}  // namespace tavrene::boxes
