#pragma once

#include <cstdint>

namespace tavrene::samples {

/// A small random source whose numbers are the same on every machine, unlike the distributions of the
/// standard library.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next() {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    /// Evenly spread from `low` (inclusive) to `high` (exclusive).
    double Between(double low, double high) {
        constexpr double steps = 9007199254740992.0;  // 2^53: every value is exact in a double
        return low + (high - low) * (static_cast<double>(Next() >> 11U) / steps);
    }

    /// Around 0, at most `size` away, small values more often than large ones.
    double Wobble(double size) { return (Between(-size, size) + Between(-size, size)) / 2; }

    bool Chance(double share) { return Between(0, 1) < share; }

  private:
    std::uint64_t state_;
};

}  // namespace tavrene::samples
