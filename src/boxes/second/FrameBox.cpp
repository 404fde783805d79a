#include "boxes/second/FrameBox.h"

#include <algorithm>
#include <array>

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

constexpr int kThickest = 12;

// Ink outwards from the inner face: the middle one of seven places along the wall, so that print beside it
// does not decide, without those in a break. `isInk` takes the place along the wall and the distance
// outwards.
template <typename IsInk>
int Thickness(int length, IsInk isInk) {
    std::array<int, 7> found{};
    for (int place = 0; place < 7; ++place) {
        const int along = length * (place + 1) / 8;
        int& thickness = found[static_cast<std::size_t>(place)];
        // The face strays by a pixel where the wall slants.
        const int from = isInk(along, 0) ? 0 : 1;
        while (from + thickness < kThickest && isInk(along, from + thickness))
            ++thickness;
    }
    std::sort(found.begin(), found.end());
    const auto breaks = std::count(found.begin(), found.end(), 0);
    return std::max(found[static_cast<std::size_t>(breaks + 6) / 2], 1);
}

}  // namespace

BoxRect BoxOf(const Frame& frame, const WorkGrid& page) {
    const int height = frame.Upper - frame.Lower;
    const int width = frame.Right - frame.Left;
    const auto upright = [&](int column, int step) {
        return Thickness(height, [&, column, step](int along, int distance) {
            return page.IsInk(column + step * distance, frame.Lower + along);
        });
    };
    const auto level = [&](int row, int step) {
        return Thickness(width, [&, row, step](int along, int distance) {
            return page.IsInk(frame.Left + along, row + step * distance);
        });
    };
    const std::array<int, 4> walls = {upright(frame.Left, -1), upright(frame.Right, 1),
                                      level(frame.Lower, -1), level(frame.Upper, 1)};
    const int most = *std::min_element(walls.begin(), walls.end()) + 1;
    const auto middle = [&](std::size_t wall) { return (std::min(walls[wall], most) - 1) / 2; };
    BoxRect box;
    box.L = static_cast<std::int16_t>(frame.Left - middle(0));
    box.R = static_cast<std::int16_t>(frame.Right + middle(1));
    box.T = static_cast<std::int16_t>(frame.Lower - middle(2));
    box.B = static_cast<std::int16_t>(frame.Upper + middle(3));
    return box;
}

}  // namespace tavrene::boxes
