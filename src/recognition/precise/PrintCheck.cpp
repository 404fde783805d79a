#include "recognition/precise/PrintCheck.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tavrene::recognition::precise {
namespace {

// What a map leaves to explain, over the page: means of the nearby boxes' offsets at the nodes of a lattice.
class BendField {
  public:
    BendField(const CellPage& page, const Alignment& alignment, std::span<const SoughtBox> boxes)
        : stepX_(std::max(1.0, page.Cells().Width() / double{kAcross - 1})),
          stepY_(std::max(1.0, page.Cells().Height() / double{kDown - 1})) {
        for (int node = 0; node < kAcross * kDown; ++node) {
            const int column = node % kAcross;
            const int row = node / kAcross;
            offsets_[static_cast<std::size_t>(node)] =
                OffsetAt({column * stepX_, row * stepY_}, alignment, boxes);
        }
    }

    CellPoint operator()(const CellPoint& place) const {
        const double x = std::clamp(place.x / stepX_, 0.0, kAcross - 1.001);
        const double y = std::clamp(place.y / stepY_, 0.0, kDown - 1.001);
        const int column = static_cast<int>(x);
        const int row = static_cast<int>(y);
        const double right = x - column;
        const double up = y - row;
        const auto node = [&](int dx, int dy) {
            const int number = (row + dy) * kAcross + column + dx;
            return offsets_[static_cast<std::size_t>(number)];
        };
        const auto blend = [&](auto ordinate) {
            return (1 - up) * ((1 - right) * ordinate(node(0, 0)) + right * ordinate(node(1, 0))) +
                   up * ((1 - right) * ordinate(node(0, 1)) + right * ordinate(node(1, 1)));
        };
        return {place.x + blend([](const CellPoint& offset) { return offset.x; }),
                place.y + blend([](const CellPoint& offset) { return offset.y; })};
    }

  private:
    static constexpr int kAcross = 9;
    static constexpr int kDown = 12;

    static CellPoint OffsetAt(const CellPoint& place, const Alignment& alignment,
                              std::span<const SoughtBox> boxes) {
        double sum = 0;
        CellPoint offset;
        for (std::size_t k = 0; k < boxes.size(); ++k) {
            if (!alignment.seen[k])
                continue;
            const CellPoint mapped = alignment.map(boxes[k].place);
            const double dx = mapped.x - place.x;
            const double dy = mapped.y - place.y;
            const double square = dx * dx + dy * dy + 400;
            const double weight = 1 / (square * square);
            sum += weight;
            offset.x += weight * (alignment.seen[k]->x - mapped.x);
            offset.y += weight * (alignment.seen[k]->y - mapped.y);
        }
        return sum > 0 ? CellPoint{offset.x / sum, offset.y / sum} : CellPoint{};
    }

    double stepX_;
    double stepY_;
    std::array<CellPoint, std::size_t{kAcross} * kDown> offsets_{};
};

bool Covers(const BitPlane& plane, const CellPoint& place) {
    return place.x > -0.5 && place.y > -0.5 && place.x < plane.Width() && place.y < plane.Height();
}

bool HasAt(const BitPlane& plane, const CellPoint& place) {
    constexpr double half = 0.5;
    return plane.Has(static_cast<int>(place.x + half), static_cast<int>(place.y + half));
}

// How many of the points have ink when all are moved by `offset`.
double ShareOnInk(const BitPlane& near, std::span<const CellPoint> points, const CellPoint& offset) {
    const auto hits = std::ranges::count_if(points, [&](const CellPoint& point) {
        const CellPoint place{point.x + offset.x, point.y + offset.y};
        return Covers(near, place) && HasAt(near, place);
    });
    return static_cast<double>(hits) / static_cast<double>(points.size());
}

constexpr double kLeastGain = 0.1;

// The same for the neighbourhood, where the points do not belong.
double ShareAround(const BitPlane& near, std::span<const CellPoint> points, int reach) {
    double sum = 0;
    constexpr CellPoint offsets[] = {{5, 2}, {-2, 5}, {-5, -2}, {2, -5}};
    for (const CellPoint& offset : offsets)
        sum += ShareOnInk(near, points, {offset.x * reach, offset.y * reach});
    return sum / std::size(offsets);
}

// A piece of the print whose place is looked for by itself.
struct Tile {
    CellPoint middle;
    std::vector<CellPoint> points;
};

constexpr int kTilesAcross = 5;
constexpr int kTilesDown = 7;
constexpr std::size_t kLeastPoints = 15;

std::vector<Tile> CutIntoTiles(std::span<const CellPoint> points, const BitPlane& cells) {
    std::vector<Tile> tiles(std::size_t{kTilesAcross} * kTilesDown);
    const auto part = [](double ordinate, int size, int parts) {
        return std::clamp(static_cast<int>(ordinate * parts / std::max(size, 1)), 0, parts - 1);
    };
    for (const CellPoint& point : points) {
        const int across = part(point.x, cells.Width(), kTilesAcross);
        const int down = part(point.y, cells.Height(), kTilesDown);
        const int number = down * kTilesAcross + across;
        Tile& tile = tiles[static_cast<std::size_t>(number)];
        tile.points.push_back(point);
        tile.middle = {tile.middle.x + point.x, tile.middle.y + point.y};
    }
    std::erase_if(tiles, [](const Tile& tile) { return tile.points.size() < kLeastPoints; });
    for (Tile& tile : tiles) {
        const auto count = static_cast<double>(tile.points.size());
        tile.middle = {tile.middle.x / count, tile.middle.y / count};
    }
    return tiles;
}

// Where most points of a tile lie on ink, if that stands out from its surroundings.
std::optional<CellPoint> Sight(const BitPlane& ink, const Tile& tile, const PageMap& map, int reach) {
    constexpr double least = 0.75;
    constexpr double outstanding = 0.15;
    std::vector<CellPoint> mapped;
    for (const CellPoint& point : tile.points)
        mapped.push_back(map(point));
    const int side = 2 * reach + 1;
    std::vector<int> hits(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    int best = 0;
    double sum = 0;
    for (int k = 0; k < side * side; ++k) {
        const int dx = k % side - reach;
        const int dy = k / side - reach;
        int count = 0;
        for (const CellPoint& point : mapped)
            count += HasAt(ink, {point.x + dx, point.y + dy}) ? 1 : 0;
        hits[static_cast<std::size_t>(k)] = count;
        best = std::max(best, count);
        sum += count;
    }
    const auto points = static_cast<double>(mapped.size());
    if (best < least * points || best - sum / (side * side) < outstanding * points)
        return std::nullopt;
    double sumX = 0;
    double sumY = 0;
    int equals = 0;
    for (int k = 0; k < side * side; ++k) {
        if (hits[static_cast<std::size_t>(k)] * 50 < best * 49)
            continue;
        const int dx = k % side - reach;
        const int dy = k / side - reach;
        sumX += dx;
        sumY += dy;
        ++equals;
    }
    const CellPoint middle = map(tile.middle);
    return CellPoint{middle.x + sumX / equals, middle.y + sumY / equals};
}

double NearestDistance(const CellPoint& place, std::span<const Sighting> sightings) {
    double nearest = std::numeric_limits<double>::max();
    for (const Sighting& sighting : sightings)
        nearest = std::min(nearest, std::hypot(sighting.place.x - place.x, sighting.place.y - place.y));
    return nearest;
}

}  // namespace

double PrintShare(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                  std::span<const SoughtBox> boxes, int reach) {
    const BitPlane& near = page.NearInk(reach);
    const BendField bend(page, alignment, boxes);
    std::vector<CellPoint> places;
    for (const CellPoint& point : points) {
        const CellPoint place = bend(alignment.map(point));
        if (Covers(near, place))
            places.push_back(place);
    }
    const double chance = page.NearInkShare(reach);
    if (2 * places.size() < points.size() || places.empty() || chance >= 1)
        return 0;
    const double hits = ShareOnInk(near, places, {});
    // On graph paper or a grey ground the print lies on ink wherever it is laid.
    if (hits - ShareAround(near, places, reach) < kLeastGain)
        return 0;
    return (hits - chance) / (1 - chance);
}

PageMap TurnedByPrint(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                      std::span<const SoughtBox> boxes, double shiftReach) {
    std::vector<Sighting> sightings;
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        if (alignment.seen[k])
            sightings.push_back({boxes[k].place, *alignment.seen[k], 1});
    }
    PageMap map = alignment.map;
    std::vector<Tile> tiles = CutIntoTiles(points, page.Cells());
    const BitPlane& ink = page.NearInk(1);
    // What no sighting is near is the less certain the farther it is; each one that is made steadies the
    // next.
    while (!tiles.empty()) {
        const auto next = std::min_element(tiles.begin(), tiles.end(), [&](const Tile& a, const Tile& b) {
            return NearestDistance(a.middle, sightings) < NearestDistance(b.middle, sightings);
        });
        const double distance = NearestDistance(next->middle, sightings);
        const int reach = std::min(14, 3 + static_cast<int>(0.05 * distance));
        if (const auto seen = Sight(ink, *next, map, reach)) {
            sightings.push_back({next->middle, *seen, 1});
            map = FitMap(map.middle, sightings, shiftReach);
        }
        tiles.erase(next);
    }
    return map;
}

}  // namespace tavrene::recognition::precise
