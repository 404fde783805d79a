#pragma once

#include <cstddef>
#include <vector>

namespace tavrene::recognition {

/// The boxes of a profile of `count` boxes that classification looks for, and from which the page's shift is
/// spread: indices 0, step, 2 x step, ... up to the last, about eleven at most. A single box is sampled once.
std::vector<std::size_t> SampleBoxes(std::size_t count);

}  // namespace tavrene::recognition
