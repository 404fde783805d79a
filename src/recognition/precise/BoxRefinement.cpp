#include "recognition/precise/BoxRefinement.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "recognition/precise/PageMap.h"

namespace tavrene::recognition::precise {
namespace {

// How far a box may lie from where the map or its neighbours put it, and how much of its outline must be
// there then; pixels of 200 dpi.
constexpr double kReach = 4;
constexpr double kNear = 3;
constexpr double kNearRatio = 0.72;
constexpr double kFar = 7.5;
constexpr double kFarRatio = 0.9;
constexpr double kLeastUnit = 0.67;  // on a coarse page a pixel is a lot, but still a pixel
constexpr std::size_t kNeighbours = 8;
constexpr std::size_t kLeastNeighbours = 3;
constexpr double kFreely = 1000;  // pixels: nothing is held against a common shift of the neighbours
constexpr double kEqualCounts = 0.02;

std::size_t Index(int value) {
    return static_cast<std::size_t>(value);
}

// One running sum for every line from `firstLine` on: over the cells from `from`, whether there is ink within
// `play` lines of each. `cellsOfLines` is memory to work in.
template <typename Ink>
void SumLines(std::vector<int>& sums, std::vector<char>& cellsOfLines, int firstLine, int lines, int from,
              int cells, int play, Ink ink) {
    cellsOfLines.clear();
    for (int line = firstLine - play; line < firstLine + lines + play; ++line) {
        for (int cell = from; cell < from + cells; ++cell)
            cellsOfLines.push_back(ink(line, cell) ? 1 : 0);
    }
    sums.assign(Index(lines) * Index(cells + 1), 0);
    for (int line = 0; line < lines; ++line) {
        int* const sum = sums.data() + Index(line) * Index(cells + 1);
        for (int off = 0; off <= 2 * play; ++off) {
            const char* const row = cellsOfLines.data() + Index(line + off) * Index(cells);
            for (int cell = 0; cell < cells; ++cell)
                sum[cell + 1] |= row[cell];
        }
        for (int cell = 0; cell < cells; ++cell)
            sum[cell + 1] += sum[cell];
    }
}

}  // namespace

void OutlineFinder::SumSides(const GridRect& expected, int reach) {
    width_ = expected.col1 - expected.col0 + 1;
    height_ = expected.row1 - expected.row0 + 1;
    const int lines = 2 * reach + 1;
    const auto level = [this](int row, int column) { return pixels_.Has(column, row); };
    const auto upright = [this](int column, int row) { return pixels_.Has(column, row); };
    const int across = width_ + 2 * reach;
    const int up = height_ + 2 * reach;
    SumLines(lower_, ink_, expected.row0 - reach, lines, expected.col0 - reach, across, play_, level);
    SumLines(upper_, ink_, expected.row1 - reach, lines, expected.col0 - reach, across, play_, level);
    SumLines(left_, ink_, expected.col0 - reach, lines, expected.row0 - reach, up, play_, upright);
    SumLines(right_, ink_, expected.col1 - reach, lines, expected.row0 - reach, up, play_, upright);
}

int OutlineFinder::CountAt(int dx, int dy, int reach) const {
    const auto side = [reach](const std::vector<int>& sums, int line, int along, int length) {
        const int* const row = sums.data() + Index(line + reach) * Index(length + 2 * reach + 1);
        return row[along + reach + length] - row[along + reach];
    };
    return side(lower_, dy, dx, width_) + side(upper_, dy, dx, width_) + side(left_, dx, dy, height_) +
           side(right_, dx, dy, height_);
}

OutlineSight OutlineFinder::Find(const GridRect& expected, int reach) {
    if (expected.row1 <= expected.row0 || expected.col1 <= expected.col0 ||
        expected.row1 - expected.row0 >= pixels_.Height() || expected.col1 - expected.col0 >= pixels_.Width())
        return {};
    SumSides(expected, reach);
    const int side = 2 * reach + 1;
    counts_.assign(Index(side) * Index(side), 0);
    int best = 0;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            const int count = CountAt(dx, dy, reach);
            counts_[Index((dy + reach) * side + dx + reach)] = count;
            best = std::max(best, count);
        }
    }
    const int outline = 2 * (width_ + height_);
    const int enough = best - static_cast<int>(kEqualCounts * outline);
    double sumX = 0;
    double sumY = 0;
    int equals = 0;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            if (counts_[Index((dy + reach) * side + dx + reach)] < enough)
                continue;
            sumX += dx;
            sumY += dy;
            ++equals;
        }
    }
    return {sumX / equals, sumY / equals, static_cast<double>(best) / outline};
}

namespace {

class Refinement {
  public:
    Refinement(std::span<BoxToRefine> boxes, OutlineFinder& finder, double unit, const PlaceAt& placeAt)
        : boxes_(boxes), finder_(finder), unit_(unit), placeAt_(placeAt) {}

    void Run() {
        for (std::size_t k = 0; k < boxes_.size(); ++k)
            LookUp(k, {boxes_[k].shiftX, boxes_[k].shiftY});
        const std::vector<BoxToRefine> first(boxes_.begin(), boxes_.end());
        for (std::size_t k = 0; k < boxes_.size(); ++k)
            HoldAgainstNeighbours(first, k);
    }

  private:
    void LookUp(std::size_t index, const CellPoint& expected) {
        const int dx = static_cast<int>(std::lround(expected.x));
        const int dy = static_cast<int>(std::lround(expected.y));
        const int reach = std::max(4, static_cast<int>(std::lround(kReach * unit_)));
        const OutlineSight sight = finder_.Find(placeAt_(index, dx, dy), reach);
        BoxToRefine& box = boxes_[index];
        box.shiftX = dx + sight.dx;
        box.shiftY = dy + sight.dy;
        box.ratio = sight.ratio;
        box.found = IsThere(box, expected);
    }

    bool IsThere(const BoxToRefine& box, const CellPoint& expected) const {
        const double away = std::hypot(box.shiftX - expected.x, box.shiftY - expected.y);
        const double unit = std::max(unit_, kLeastUnit);
        return (box.ratio >= kNearRatio && away <= kNear * unit) ||
               (box.ratio >= kFarRatio && away <= kFar * unit);
    }

    void HoldAgainstNeighbours(std::span<const BoxToRefine> first, std::size_t index) {
        BoxToRefine& box = boxes_[index];
        const std::optional<CellPoint> expected = ByNeighbours(first, index);
        if (!expected) {
            if (!box.found) {
                box.shiftX = box.mapX;
                box.shiftY = box.mapY;
            }
            return;
        }
        if (box.found && IsThere(box, *expected))
            return;
        LookUp(index, *expected);
        if (!box.found) {
            box.shiftX = expected->x;
            box.shiftY = expected->y;
        }
    }

    // Where the plane through what the map leaves to explain at the nearest found boxes puts a box.
    static std::optional<CellPoint> ByNeighbours(std::span<const BoxToRefine> first, std::size_t index) {
        const BoxToRefine& box = first[index];
        std::vector<std::pair<double, std::size_t>> near;
        for (std::size_t k = 0; k < first.size(); ++k) {
            if (k != index && first[k].found)
                near.emplace_back(std::hypot(first[k].x - box.x, first[k].y - box.y), k);
        }
        if (near.size() < kLeastNeighbours)
            return std::nullopt;
        const std::size_t count = std::min(kNeighbours, near.size());
        std::partial_sort(near.begin(), near.begin() + static_cast<std::ptrdiff_t>(count), near.end());
        std::vector<Sighting> sightings;
        for (std::size_t k = 0; k < count; ++k) {
            const BoxToRefine& other = first[near[k].second];
            sightings.push_back({{other.x, other.y},
                                 {other.x + other.shiftX - other.mapX, other.y + other.shiftY - other.mapY},
                                 1});
        }
        const PageMap plane = FitMap({box.x, box.y}, sightings, kFreely);
        return CellPoint{box.mapX + plane.shiftX, box.mapY + plane.shiftY};
    }

    std::span<BoxToRefine> boxes_;
    OutlineFinder& finder_;
    double unit_;
    const PlaceAt& placeAt_;
};

}  // namespace

void RefineBoxes(std::span<BoxToRefine> boxes, OutlineFinder& finder, double unit, const PlaceAt& placeAt) {
    Refinement(boxes, finder, unit, placeAt).Run();
}

}  // namespace tavrene::recognition::precise
