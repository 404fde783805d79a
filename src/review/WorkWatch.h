#pragma once

#include <cstddef>
#include <functional>

namespace tavrene::review {

/// Asked before each form of a long work, of which `done` of `total` are done: false ends the work there.
using WorkWatch = std::function<bool(std::size_t done, std::size_t total)>;

/// For work that nobody stops.
inline bool GoesOnAlways(std::size_t, std::size_t) {
    return true;
}

}  // namespace tavrene::review
