#include "profiles/BoxGrid.h"

#include <algorithm>
#include <cmath>

namespace tavrene::profiles {
namespace {

using imaging::PageRect;
using imaging::WorkGrid;

constexpr int kMostLines = 60;

// So much of an outline's side is ink where it is printed.
constexpr double kPrinted = 0.6;

// A grid with more boxes must be as well printed as the best one but for this much.
constexpr double kNearlyAsGood = 0.9;

// How far the guess looks for an outline around the place where it should be, in pixels.
constexpr int kSlack = 3;

// The boxes' sides as whole ordinates of the page.
struct Sides {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

Sides SidesOf(const PageRect& place) {
    const auto whole = [](double ordinate) { return static_cast<int>(std::lround(ordinate)); };
    return {whole(place.left), whole(place.top), whole(place.left + place.width),
            whole(place.top + place.height)};
}

// The share of ink in the middle of an upright or a level line; its ends belong to the sides it meets.
double InkOfUpright(const WorkGrid& page, int column, int top, int bottom) {
    const int spare = (bottom - top) / 8;
    int ink = 0;
    for (int y = top + spare; y <= bottom - spare; ++y)
        ink += page.IsInk(column, imaging::FlipVertically(page.Rows(), y)) ? 1 : 0;
    return ink / std::max(1.0, static_cast<double>(bottom - top - 2 * spare + 1));
}

double InkOfLevel(const WorkGrid& page, int y, int left, int right) {
    const int spare = (right - left) / 8;
    int ink = 0;
    for (int x = left + spare; x <= right - spare; ++x)
        ink += page.IsInk(x, imaging::FlipVertically(page.Rows(), y)) ? 1 : 0;
    return ink / std::max(1.0, static_cast<double>(right - left - 2 * spare + 1));
}

struct Line {
    int at = 0;
    double ink = 0;
};

// The line with the most ink near an ordinate, the nearest one where several are alike.
template <typename Ink>
Line BestLine(int at, int reach, const Ink& inkAt) {
    Line best{at, inkAt(at)};
    for (int off = 1; off <= reach; ++off)
        for (const int other : {at - off, at + off})
            if (const double ink = inkAt(other); ink > best.ink)
                best = {other, ink};
    return best;
}

struct Outline {
    Sides sides;
    double leastInk = 0;  ///< Of its four sides.
};

Outline OutlineNear(const WorkGrid& page, const Sides& near, int reachX, int reachY) {
    const auto upright = [&](int x) {
        return BestLine(x, reachX, [&](int at) { return InkOfUpright(page, at, near.top, near.bottom); });
    };
    const auto level = [&](int y, const Line& left, const Line& right) {
        return BestLine(y, reachY, [&](int at) { return InkOfLevel(page, at, left.at, right.at); });
    };
    const Line left = upright(near.left);
    const Line right = upright(near.right);
    const Line top = level(near.top, left, right);
    const Line bottom = level(near.bottom, left, right);
    return {{left.at, top.at, right.at, bottom.at}, std::min({left.ink, right.ink, top.ink, bottom.ink})};
}

// How well a line of so many boxes from the first to the last is printed.
double PrintOf(const WorkGrid& page, const std::vector<PageRect>& places) {
    double sum = 0;
    for (const PageRect& place : places)
        sum += std::min(kPrinted, OutlineNear(page, SidesOf(place), kSlack, kSlack).leastInk);
    return sum / static_cast<double>(places.size());
}

// The most boxes in a line that are printed about as well as the best number of them is.
template <typename Places>
int CountInPrint(const WorkGrid& page, double way, double size, const Places& placesOf) {
    if (way < size)
        return 1;
    const int most = std::clamp(static_cast<int>(way / size) + 1, 2, kMostLines);
    std::vector<double> prints;
    for (int count = 2; count <= most; ++count)
        prints.push_back(PrintOf(page, placesOf(count)));
    const double good = kNearlyAsGood * *std::max_element(prints.begin(), prints.end());
    const auto last =
        std::find_if(prints.rbegin(), prints.rend(), [good](double print) { return print >= good; });
    return good == 0 ? 2 : most - static_cast<int>(last - prints.rbegin());
}

}  // namespace

std::vector<PageRect> PlacesOfGrid(const PageRect& first, const PageRect& last, GridShape shape) {
    const double wayX = last.left + last.width / 2 - first.left - first.width / 2;
    const double wayY = last.top + last.height / 2 - first.top - first.height / 2;
    const auto step = [](double way, int lines) { return lines > 1 ? way / (lines - 1) : 0; };
    std::vector<PageRect> places;
    for (int row = 0; row < shape.rows; ++row)
        for (int column = 0; column < shape.columns; ++column)
            places.push_back({std::nearbyint(first.left + column * step(wayX, shape.columns)),
                              std::nearbyint(first.top + row * step(wayY, shape.rows)), first.width,
                              first.height});
    return places;
}

GridShape ShapeInPrint(const WorkGrid& page, const PageRect& first, const PageRect& last) {
    PageRect below = first;
    below.top = last.top;
    PageRect beside = first;
    beside.left = last.left;
    return {CountInPrint(page, last.top - first.top, first.height,
                         [&](int rows) {
                             return PlacesOfGrid(first, below, {rows, 1});
                         }),
            CountInPrint(page, last.left - first.left, first.width, [&](int columns) {
                return PlacesOfGrid(first, beside, {1, columns});
            })};
}

std::optional<PageRect> OutlineUnder(const WorkGrid& page, const PageRect& place) {
    const auto reach = [](double length) { return std::max(4, static_cast<int>(length / 4)); };
    const Outline found = OutlineNear(page, SidesOf(place), reach(place.width), reach(place.height));
    if (found.leastInk < kPrinted)
        return std::nullopt;
    const auto& [left, top, right, bottom] = found.sides;
    return PageRect{static_cast<double>(left), static_cast<double>(top), static_cast<double>(right - left),
                    static_cast<double>(bottom - top)};
}

}  // namespace tavrene::profiles
