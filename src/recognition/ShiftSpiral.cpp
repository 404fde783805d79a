#include "recognition/ShiftSpiral.h"

#include <vector>

namespace tavrene::recognition {
namespace {

// Moves along the ring of radius `r`; false at its end. `moves` counts the moves made in this ring.
bool MoveAlongRing(int r, int moves, int& dx, int& dy) {
    if (dx == -r && ((dy < r && moves <= r + 1) || dy < 0))
        ++dy;
    else if (dx < r && dy == r)
        ++dx;
    else if (dx == r && dy > -r)
        --dy;
    else if (dx > -r && dy == -r)
        --dx;
    else
        return false;
    return true;
}

std::vector<BoxShift> WalkAllRings() {
    std::vector<BoxShift> shifts;
    int dy = 0;
    for (int r = 0; r <= kMaxShift; ++r) {
        int dx = -r;
        int moves = 0;
        do {
            shifts.push_back({static_cast<std::int16_t>(dx), static_cast<std::int16_t>(dy)});
        } while (MoveAlongRing(r, moves++, dx, dy));
    }
    return shifts;
}

}  // namespace

std::span<const BoxShift> ShiftSpiral() {
    static const std::vector<BoxShift> shifts = WalkAllRings();
    return shifts;
}

}  // namespace tavrene::recognition
