#include "painter/Canvas.h"

#include <algorithm>
#include <cmath>

namespace tavrene::samples {

namespace {

int FloorToInt(double value) {
    return static_cast<int>(std::floor(value));
}

/// The square of the distance of `p` from the line between `a` and `b`.
double SquaredDistance(Point p, Point a, Point b) {
    const double alongX = b.x - a.x;
    const double alongY = b.y - a.y;
    const double squaredLength = alongX * alongX + alongY * alongY;
    double share = 0;
    if (squaredLength > 0)
        share = std::clamp(((p.x - a.x) * alongX + (p.y - a.y) * alongY) / squaredLength, 0.0, 1.0);
    const double offX = p.x - (a.x + share * alongX);
    const double offY = p.y - (a.y + share * alongY);
    return offX * offX + offY * offY;
}

/// The abscissas at which the outline of a polygon crosses the horizontal line `y`, ascending.
std::vector<double> CrossingsAt(std::span<const Point> corners, double y) {
    std::vector<double> crossings;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point a = corners[i];
        const Point b = corners[(i + 1) % corners.size()];
        if ((a.y <= y) != (b.y <= y))
            crossings.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

}  // namespace

Canvas::Canvas(int width, int height, int dpi)
    : width_(width),
      height_(height),
      dpi_(dpi),
      cells_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kWhite) {}

void Canvas::FillRect(int x, int y, int width, int height, Shade shade) {
    for (int line = y; line < y + height; ++line)
        for (int column = x; column < x + width; ++column)
            Darken(column, line, shade);
}

void Canvas::DrawRect(int x, int y, int width, int height, int thickness, Shade shade) {
    FillRect(x, y, width, thickness, shade);
    FillRect(x, y + height - thickness, width, thickness, shade);
    FillRect(x, y, thickness, height, shade);
    FillRect(x + width - thickness, y, thickness, height, shade);
}

void Canvas::DrawLine(Point from, Point to, double thickness, Shade shade) {
    const double reach = thickness / 2;
    const int lastLine = FloorToInt(std::max(from.y, to.y) + reach);
    const int lastColumn = FloorToInt(std::max(from.x, to.x) + reach);
    for (int y = FloorToInt(std::min(from.y, to.y) - reach); y <= lastLine; ++y)
        for (int x = FloorToInt(std::min(from.x, to.x) - reach); x <= lastColumn; ++x)
            if (SquaredDistance({x + 0.5, y + 0.5}, from, to) <= reach * reach)
                Darken(x, y, shade);
}

void Canvas::FillDisc(Point centre, double radius, Shade shade) {
    DrawLine(centre, centre, 2 * radius, shade);
}

void Canvas::FillPolygon(std::span<const Point> corners, Shade shade) {
    if (corners.empty())
        return;
    const auto [top, bottom] =
        std::minmax_element(corners.begin(), corners.end(), [](Point a, Point b) { return a.y < b.y; });
    for (int y = FloorToInt(top->y); y <= FloorToInt(bottom->y); ++y) {
        const std::vector<double> crossings = CrossingsAt(corners, y + 0.5);
        for (std::size_t pair = 0; pair + 1 < crossings.size(); pair += 2) {
            const int first = FloorToInt(crossings[pair] + 0.5);
            FillRect(first, y, FloorToInt(crossings[pair + 1] + 0.5) - first, 1, shade);
        }
    }
}

}  // namespace tavrene::samples
