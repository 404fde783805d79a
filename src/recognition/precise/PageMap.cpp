#include "recognition/precise/PageMap.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace tavrene::recognition::precise {
namespace {

// A sighting is off by about a cell; pages are turned by a degree or two, stretched by one or two percent and
// hardly sheared.
constexpr double kTurnDeviation = 0.03;
constexpr double kStretchDeviation = 0.02;
constexpr double kShearDeviation = 0.002;
constexpr double kRoom = 1.1;

constexpr std::size_t kUnknowns = 6;  // shiftX, xByX, xByY, shiftY, yByX, yByY
using Row = std::array<double, kUnknowns>;

// Normal equations of a linear least squares problem.
class Equations {
  public:
    void Add(const Row& factors, double value, double weight) {
        for (std::size_t i = 0; i < kUnknowns; ++i) {
            for (std::size_t k = 0; k < kUnknowns; ++k)
                matrix_[i][k] += weight * factors[i] * factors[k];
            right_[i] += weight * factors[i] * value;
        }
    }

    // By elimination; the priors keep the matrix positive definite.
    Row Solve() {
        for (std::size_t i = 0; i < kUnknowns; ++i) {
            for (std::size_t below = i + 1; below < kUnknowns; ++below) {
                const double factor = matrix_[below][i] / matrix_[i][i];
                for (std::size_t k = i; k < kUnknowns; ++k)
                    matrix_[below][k] -= factor * matrix_[i][k];
                right_[below] -= factor * right_[i];
            }
        }
        Row solution{};
        for (std::size_t i = kUnknowns; i-- > 0;) {
            double rest = right_[i];
            for (std::size_t k = i + 1; k < kUnknowns; ++k)
                rest -= matrix_[i][k] * solution[k];
            solution[i] = rest / matrix_[i][i];
        }
        return solution;
    }

  private:
    std::array<Row, kUnknowns> matrix_{};
    Row right_{};
};

constexpr double WeightOf(double deviation) {
    return 1 / (deviation * deviation);
}

}  // namespace

bool IsWithin(const PageMap& map, const PageReach& reach) {
    const double mostShift = reach.shift * kRoom;
    return map.shiftX * map.shiftX + map.shiftY * map.shiftY <= mostShift * mostShift &&
           std::abs(map.Turn()) <= reach.turn * kRoom && std::abs(map.xByX) <= reach.stretch * kRoom &&
           std::abs(map.yByY) <= reach.stretch * kRoom;
}

PageMap FitMap(const CellPoint& middle, std::span<const Sighting> sightings, double shiftReach) {
    Equations equations;
    for (const Sighting& sighting : sightings) {
        const double u = sighting.place.x - middle.x;
        const double v = sighting.place.y - middle.y;
        equations.Add({1, u, v, 0, 0, 0}, sighting.seen.x - sighting.place.x, sighting.weight);
        equations.Add({0, 0, 0, 1, u, v}, sighting.seen.y - sighting.place.y, sighting.weight);
    }
    equations.Add({1, 0, 0, 0, 0, 0}, 0, WeightOf(shiftReach));
    equations.Add({0, 0, 0, 1, 0, 0}, 0, WeightOf(shiftReach));
    equations.Add({0, 1, 0, 0, 0, 0}, 0, WeightOf(kStretchDeviation));
    equations.Add({0, 0, 0, 0, 0, 1}, 0, WeightOf(kStretchDeviation));
    equations.Add({0, 0, -0.5, 0, 0.5, 0}, 0, WeightOf(kTurnDeviation));
    equations.Add({0, 0, 0.5, 0, 0.5, 0}, 0, WeightOf(kShearDeviation));
    const Row found = equations.Solve();
    return {middle, found[0], found[3], found[1], found[2], found[4], found[5]};
}

}  // namespace tavrene::recognition::precise
