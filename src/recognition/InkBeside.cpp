#include "recognition/InkBeside.h"

#include <algorithm>
#include <cstdint>

#include "recognition/MarkReading.h"

namespace tavrene::recognition {
namespace {

// Shares of the box's smaller side.
constexpr double kClear = 0.15;
constexpr double kDepth = 0.5;

double Share(const imaging::WorkGrid& grid, const GridRect& strip) {
    const std::int64_t width = std::int64_t{strip.col1} - strip.col0 + 1;
    const std::int64_t height = std::int64_t{strip.row1} - strip.row0 + 1;
    if (width <= 0 || height <= 0)
        return 0;
    return 100.0 * CountInk(grid, strip) / static_cast<double>(width * height);
}

}  // namespace

std::array<GridRect, 4> StripsBeside(const GridRect& box) {
    const int side = std::min(box.col1 - box.col0, box.row1 - box.row0) + 1;
    const int clear = std::max(3, static_cast<int>(side * kClear));
    const int depth = std::max(2, static_cast<int>(side * kDepth));
    const int left = box.col0 - clear;
    const int right = box.col1 + clear;
    const int below = box.row0 - clear;
    const int above = box.row1 + clear;
    return {{{box.row0, left - depth + 1, box.row1, left},
             {above, box.col0, above + depth - 1, box.col1},
             {box.row0, right, box.row1, right + depth - 1},
             {below - depth + 1, box.col0, below, box.col1}}};
}

SideInk InkBeside(const imaging::WorkGrid& grid, const GridRect& box) {
    SideInk ink{};
    const std::array<GridRect, 4> strips = StripsBeside(box);
    std::ranges::transform(strips, ink.begin(), [&](const GridRect& strip) { return Share(grid, strip); });
    return ink;
}

}  // namespace tavrene::recognition
