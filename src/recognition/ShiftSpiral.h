#pragma once

#include <cstdint>
#include <span>

namespace tavrene::recognition {

/// How far, in image pixels, a box is looked for around its expected place: an eighth of an inch at 200 dpi,
/// about what a feeder displaces. The search grows with its square, and so does the chance of a false match.
inline constexpr int kMaxShift = 25;

/// A displacement in the grid frame: `dx` columns to the right, `dy` rows up.
struct BoxShift {
    std::int16_t dx = 0;
    std::int16_t dy = 0;
    bool operator==(const BoxShift&) const = default;
};

/// Every shift in the order in which it is tried, from 0,0 outwards in rings up to `kMaxShift`. A ring starts
/// at the middle of its left side, climbs, runs right, descends, runs back left and climbs to its start,
/// which is therefore tried twice. The order decides which shift is recorded when several show an outline.
std::span<const BoxShift> ShiftSpiral();

}  // namespace tavrene::recognition
