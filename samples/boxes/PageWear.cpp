#include "boxes/PageWear.h"

#include <cmath>
#include <numbers>

namespace tavrene::samples {
namespace {

using imaging::WorkGrid;

// Ink where any (or, for erosion, every) cell of the three by three around has ink.
WorkGrid Spread(const WorkGrid& grid, bool ink) {
    WorkGrid result = grid.Clone();
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Width(); ++column) {
            bool touched = false;
            for (int offset = 0; offset < 9 && !touched; ++offset)
                touched = grid.IsInk(column + offset % 3 - 1, row + offset / 3 - 1) == ink;
            if (touched)
                result.SetInk(column, row, ink);
        }
    }
    return result;
}

// A turn about the middle of the page.
class Turn {
  public:
    Turn(const WorkGrid& grid, double degrees)
        : centreX_(grid.Width() / 2.0),
          centreY_(grid.Rows() / 2.0),
          cosine_(std::cos(degrees * std::numbers::pi / 180)),
          sine_(std::sin(degrees * std::numbers::pi / 180)) {}

    Point operator()(double x, double y) const {
        const double fromX = x - centreX_;
        const double fromY = y - centreY_;
        return {centreX_ + fromX * cosine_ - fromY * sine_, centreY_ + fromX * sine_ + fromY * cosine_};
    }

  private:
    double centreX_;
    double centreY_;
    double cosine_;
    double sine_;
};

}  // namespace

void AddSpecks(WorkGrid& grid, Random& dice, double share) {
    const auto count = static_cast<long>(share * grid.Width() * grid.Rows());
    for (long index = 0; index < count; ++index) {
        const auto column = static_cast<int>(dice.Between(0, grid.Width()));
        const auto row = static_cast<int>(dice.Between(0, grid.Rows()));
        grid.SetInk(column, row, !grid.IsInk(column, row));
    }
}

void Erode(WorkGrid& grid) {
    grid = Spread(grid, false);
}

void Dilate(WorkGrid& grid) {
    grid = Spread(grid, true);
}

void Tilt(WorkGrid& grid, std::vector<TrueBox>& truth, double degrees) {
    WorkGrid turned(grid.Width(), grid.Columns(), grid.Rows());
    const Turn back(grid, -degrees);
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Width(); ++column) {
            const Point from = back(column, row);
            if (grid.IsInk(static_cast<int>(std::lround(from.x)), static_cast<int>(std::lround(from.y))))
                turned.SetInk(column, row);
        }
    }
    const Turn turn(grid, degrees);
    for (TrueBox& box : truth) {
        const double middleX = (box.L + box.R) / 2;
        const double middleY = (box.T + box.B) / 2;
        box = {turn(box.L, middleY).x, turn(middleX, box.T).y, turn(box.R, middleY).x,
               turn(middleX, box.B).y};
    }
    grid = std::move(turned);
}

}  // namespace tavrene::samples
