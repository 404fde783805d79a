#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <numeric>

namespace tavrene::boxes {

/// Places along one side that lie on a straight line, as shares of all. `isInk` takes the place along the
/// side and the distance outwards from it, negative inwards.
///
/// Print, shadows and tapering lie on one face of a line only, so it is enough that the other is straight.
/// The arc of a letter bends both, by more than the pixel that a slanting or worn line does.
class SideFaces {
  public:
    template <typename IsInk>
    SideFaces(int length, IsInk isInk) : lines_(1 + std::min(length / kLengthPerLine, 2)) {
        const int skipped = length / 10;
        for (int along = skipped; along <= length - skipped; ++along, ++places_) {
            const int line = LineAt(along, isInk);
            if (line > 1)
                continue;
            const std::size_t outer = Slot(Face(along, line, 1, isInk));
            const std::size_t inner = Slot(Face(along, line, -1, isInk));
            outer_[outer]++;
            inner_[inner]++;
            if (along < length / kEnds || along > length - length / kEnds)
                continue;
            ++middlePlaces_;
            outerMiddle_[outer]++;
            innerMiddle_[inner]++;
        }
    }

    /// How far a straight face may stray from its line.
    enum class Bend { None, OnePixel };

    bool IsStraight(Bend bend) const {
        const int lines = bend == Bend::None ? 1 : 2;
        return IsMost(std::max(MostOnLines(inner_, lines), MostOnLines(outer_, lines)), places_);
    }

    /// Whether even the middle three fifths, as far as there is ink, stray farther than a slanting side does.
    bool IsBow() const {
        return !IsMost(std::max(MostOnLines(innerMiddle_, lines_), MostOnLines(outerMiddle_, lines_)),
                       middlePlaces_);
    }

  private:
    static constexpr int kFarthest = 9;
    static constexpr int kEnds = 5;
    static constexpr int kLengthPerLine = 25;
    using Histogram = std::array<int, 2 * kFarthest + 1>;

    // Where the line is at a place: 0, or one pixel to either side; 2 where it is not.
    template <typename IsInk>
    static int LineAt(int along, IsInk isInk) {
        for (const int distance : {0, 1, -1}) {
            if (isInk(along, distance))
                return distance;
        }
        return 2;
    }

    template <typename IsInk>
    static int Face(int along, int line, int direction, IsInk isInk) {
        int distance = line;
        while (std::abs(distance) < kFarthest && isInk(along, distance + direction))
            distance += direction;
        return distance;
    }

    static bool IsMost(int places, int all) {
        constexpr int neededPercent = 85;
        return places * 100 >= neededPercent * all;
    }

    static std::size_t Slot(int distance) {
        const int slot = distance + kFarthest;
        return static_cast<std::size_t>(slot);
    }

    // The most places on so many lines side by side.
    static int MostOnLines(const Histogram& faces, int lines) {
        int most = 0;
        for (std::size_t slot = 0; slot + static_cast<std::size_t>(lines) <= faces.size(); ++slot) {
            const auto first = faces.begin() + static_cast<std::ptrdiff_t>(slot);
            most = std::max(most, std::accumulate(first, first + lines, 0));
        }
        return most;
    }

    Histogram outer_{};
    Histogram inner_{};
    Histogram outerMiddle_{};
    Histogram innerMiddle_{};
    int lines_;
    int places_ = 0;
    int middlePlaces_ = 0;
};

}  // namespace tavrene::boxes
