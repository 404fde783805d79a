#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace tavrene::app {

/// The smaller of two; on a tie the first.
constexpr std::int16_t Min(std::int16_t a, std::int16_t b) {
    return a <= b ? a : b;
}

/// The larger of two; on a tie the first.
constexpr std::int16_t Max(std::int16_t a, std::int16_t b) {
    return a >= b ? a : b;
}

/// `value` held at the nearest number of 16 bits.
constexpr std::int16_t ClampToInt16(double value) {
    constexpr double low = std::numeric_limits<std::int16_t>::min();
    constexpr double high = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::clamp(value, low, high));
}

/// The nearest 16-bit number (the default rounding mode is never changed), halves to the even neighbour, held
/// at the ends of the range. Not for NaN.
inline std::int16_t RoundToInt16(double value) {
    return ClampToInt16(std::nearbyint(value));
}

/// The nearest 32-bit number, halves to the even neighbour, held at the ends of the range. Not for NaN.
inline int RoundToInt(double value) {
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::nearbyint(value), low, high));
}

/// The low 16 bits of `value` as a signed number.
constexpr std::int16_t WrapToInt16(std::int64_t value) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
}

/// The decimal number that `text` begins with (blanks before it are passed over), 0 where there is none.
double LeadingNumber(std::string_view text);

}  // namespace tavrene::app
