#include "imaging/BitCount.h"

#include <bit>
#include <cstddef>

namespace tavrene::imaging {

int CountBits(std::span<const std::uint64_t> words, int first, int last) {
    constexpr unsigned kWordBits = 64;
    if (last < first)
        return 0;
    const auto firstBit = static_cast<std::size_t>(first);
    const auto lastBit = static_cast<std::size_t>(last);
    int count = 0;
    for (std::size_t index = firstBit / kWordBits; index <= lastBit / kWordBits; ++index) {
        std::uint64_t word = words[index];
        if (index == firstBit / kWordBits)
            word &= ~std::uint64_t{0} << (firstBit % kWordBits);
        if (index == lastBit / kWordBits)
            word &= ~std::uint64_t{0} >> (kWordBits - 1 - lastBit % kWordBits);
        count += std::popcount(word);
    }
    return count;
}

}  // namespace tavrene::imaging
