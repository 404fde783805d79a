#include "painter/Marks.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tavrene::samples {

namespace {

/// A place in a box by shares of its sides, moved by up to `wobble` (a share
/// too).
Point Within(Random& random, const MarkArea& box, double shareX, double shareY, double wobble) {
    return {box.x + box.width * (shareX + random.Wobble(wobble)),
            box.y + box.height * (shareY + random.Wobble(wobble))};
}

/// A place on the curve through b and c (Catmull-Rom); a and d are the
/// neighbours.
Point OnCurve(Point a, Point b, Point c, Point d, double t) {
    const auto blend = [t](double p, double q, double r, double s) {
        return 0.5 * (2 * q + (r - p) * t + (2 * p - 5 * q + 4 * r - s) * t * t +
                      (3 * q - p - 3 * r + s) * t * t * t);
    };
    return {blend(a.x, b.x, c.x, d.x), blend(a.y, b.y, c.y, d.y)};
}

/// The smooth curve through the places, cut into steps of about `step` pixels.
std::vector<Point> Smooth(std::span<const Point> places, double step) {
    std::vector<Point> curve;
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        const Point before = places[i == 0 ? 0 : i - 1];
        const Point after = places[i + 2 < places.size() ? i + 2 : i + 1];
        const double length = std::hypot(places[i + 1].x - places[i].x, places[i + 1].y - places[i].y);
        const int steps = std::max(1, static_cast<int>(length / step));
        for (int k = 0; k < steps; ++k)
            curve.push_back(OnCurve(before, places[i], places[i + 1], after, static_cast<double>(k) / steps));
    }
    curve.push_back(places.back());
    return curve;
}

/// Lines to and fro that run from the top to the bottom of the box, `turns`
/// times.
std::vector<Point> ZigZag(Random& random, const MarkArea& box, int turns, double margin, double wobble) {
    std::vector<Point> places;
    for (int turn = 0; turn <= turns; ++turn) {
        const double down = margin + (1 - 2 * margin) * turn / turns;
        places.push_back(Within(random, box, turn % 2 == 0 ? margin : 1 - margin, down, wobble));
    }
    return places;
}

}  // namespace

void DrawStroke(Canvas& canvas, Random& random, std::span<const Point> places, const Pen& pen) {
    if (places.empty())
        return;
    const std::vector<Point> curve = Smooth(places, pen.width / 4);
    const double phase = random.Between(0, 2 * std::numbers::pi);
    int gap = 0;
    for (std::size_t i = 0; i + 1 < curve.size() || i == 0; ++i) {
        if (gap == 0 && random.Chance(pen.dryness / 4))
            gap = 4;
        if (gap > 0) {
            --gap;
            continue;
        }
        const double pressure = 1 + 0.15 * std::sin(phase + static_cast<double>(i) * 0.15);
        canvas.DrawLine(curve[i], curve[std::min(i + 1, curve.size() - 1)], pen.width * pressure, pen.shade);
    }
}

void DrawTick(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const std::vector<Point> places = {
        Within(random, box, 0.18, 0.50, 0.08), Within(random, box, 0.30, 0.64, 0.05),
        Within(random, box, 0.42, 0.84, 0.06), Within(random, box, 0.62, 0.45, 0.08),
        Within(random, box, 1.06, -0.14, 0.14)};
    DrawStroke(canvas, random, places, pen);
}

void DrawCross(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const std::vector<Point> falling = {Within(random, box, 0.05, 0.06, 0.16),
                                        Within(random, box, 0.50, 0.50, 0.10),
                                        Within(random, box, 0.95, 0.98, 0.16)};
    const std::vector<Point> rising = {Within(random, box, 0.96, 0.00, 0.16),
                                       Within(random, box, 0.52, 0.48, 0.10),
                                       Within(random, box, 0.04, 0.98, 0.16)};
    DrawStroke(canvas, random, falling, pen);
    DrawStroke(canvas, random, rising, pen);
}

void DrawDot(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const double middleX = 0.5 + random.Wobble(0.1);
    const double middleY = 0.5 + random.Wobble(0.1);
    std::vector<Point> places;
    for (int i = 0; i <= 12; ++i) {
        const double angle = i * std::numbers::pi / 5;
        places.push_back(
            Within(random, box, middleX + 0.08 * std::cos(angle), middleY + 0.08 * std::sin(angle), 0.04));
    }
    DrawStroke(canvas, random, places, pen);
}

void DrawDash(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const std::vector<Point> places = {Within(random, box, 0.15, 0.80, 0.10),
                                       Within(random, box, 0.52, 0.50, 0.06),
                                       Within(random, box, 0.90, 0.16, 0.12)};
    DrawStroke(canvas, random, places, pen);
}

void DrawFilling(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const int turns = static_cast<int>(box.height / pen.width * 1.6);
    DrawStroke(canvas, random, ZigZag(random, box, turns, 0.08, 0.05), pen);
}

void DrawScribble(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    const int turns = static_cast<int>(box.height / pen.width);
    DrawStroke(canvas, random, ZigZag(random, box, turns, -0.08, 0.12), pen);
}

void DrawRing(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen) {
    std::vector<Point> places;
    const double start = random.Between(-2.4, -1.2);
    for (int i = 0; i <= 13; ++i) {
        const double angle = start + i * 2 * std::numbers::pi / 12;
        places.push_back(
            Within(random, box, 0.5 + 0.95 * std::cos(angle), 0.5 + 0.88 * std::sin(angle), 0.05));
    }
    DrawStroke(canvas, random, places, pen);
}

void DrawHandwriting(Canvas& canvas, Random& random, Point origin, double length, double height,
                     const Pen& pen) {
    constexpr int kPlaces = 8;  // per letter
    constexpr double kSlant = 0.3;
    double x = origin.x;
    while (x < origin.x + length) {
        std::vector<Point> word;
        const auto letters = 2 + random.Next() % 7;
        for (std::uint64_t letter = 0; letter < letters; ++letter) {
            const double kind = random.Between(0, 1);
            const double up = height * (kind < 0.22 ? 1.9 : kind < 0.3 ? -0.9 : random.Between(0.75, 1.05));
            const double width = height * random.Between(0.4, 0.8);
            const double loop = height * random.Between(0.0, 0.4);
            for (int k = 0; k < kPlaces; ++k) {
                const double angle = 2 * std::numbers::pi * k / kPlaces;
                const double rise = up * (1 - std::cos(angle)) / 2;
                word.push_back(
                    {x + width * k / kPlaces - loop * std::sin(angle) + kSlant * rise, origin.y - rise});
            }
            x += width;
        }
        DrawStroke(canvas, random, word, pen);
        x += height;
    }
}

void DrawSpecks(Canvas& canvas, Random& random, int count, double radius) {
    for (int i = 0; i < count; ++i) {
        const Point place{random.Between(0, canvas.Width()), random.Between(0, canvas.Height())};
        const double size = random.Between(0, 1);
        canvas.FillDisc(place, radius * (0.4 + 0.6 * size * size * size));
    }
}

}  // namespace tavrene::samples
