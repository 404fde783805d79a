#pragma once

#include <algorithm>
#include <bit>
#include <span>

#include "imaging/WorkGrid.h"

namespace tavrene::boxes {

/// Position of the first bit at or after `from` that is 1 (or 0, with `Flip` all ones), `limit` where there
/// is none before it.
template <imaging::WorkGrid::Word Flip>
int NextBit(std::span<const imaging::WorkGrid::Word> bits, int from, int limit) {
    constexpr int wordBits = imaging::WorkGrid::kWordBits;
    if (from >= limit)
        return limit;
    auto index = static_cast<std::size_t>(from / wordBits);
    imaging::WorkGrid::Word word = (bits[index] ^ Flip) & (~imaging::WorkGrid::Word{0} << (from % wordBits));
    const auto lastIndex = static_cast<std::size_t>((limit - 1) / wordBits);
    while (word == 0 && index < lastIndex)
        word = bits[++index] ^ Flip;
    if (word == 0)
        return limit;
    return std::min(limit, static_cast<int>(index) * wordBits + std::countr_zero(word));
}

/// Calls `visit(start, end)` for every run of ink among the first `limit` bits, in order; `end` is exclusive.
template <typename Visit>
void ForEachRun(std::span<const imaging::WorkGrid::Word> bits, int limit, Visit visit) {
    constexpr imaging::WorkGrid::Word ones = ~imaging::WorkGrid::Word{0};
    int start = NextBit<0>(bits, 0, limit);
    while (start < limit) {
        const int end = NextBit<ones>(bits, start, limit);
        visit(start, end);
        start = NextBit<0>(bits, end, limit);
    }
}

}  // namespace tavrene::boxes
