#pragma once

#include <cstdint>
#include <span>

namespace tavrene::imaging {

/// The set bits among `first` to `last` (from 0, both inclusive) of a row of words; bit k of word w is number
/// w x 64 + k. 0 where `last` lies before `first`.
int CountBits(std::span<const std::uint64_t> words, int first, int last);

}  // namespace tavrene::imaging
