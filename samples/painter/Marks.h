#pragma once

#include <span>

#include "painter/Canvas.h"
#include "painter/Random.h"

namespace tavrene::samples {

/// A writing tool. `width` is in pixels; `dryness` is the share of the stroke that leaves no ink (0 for a
/// fresh pen).
struct Pen {
    double width = 4;
    Shade shade = kBlack;
    double dryness = 0;
};

/// The outer edges of a printed box: pixels, page frame.
struct MarkArea {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
};

/// A smooth stroke through the given places, as a hand draws it: the width breathes, a dry pen leaves gaps.
void DrawStroke(Canvas& canvas, Random& random, std::span<const Point> places, const Pen& pen);

/// The marks that people make in a box; each differs with the state of `random`. All lie in the box or run a
/// little over its edge, as their names say.
void DrawTick(Canvas& canvas, Random& random, const MarkArea& box,
              const Pen& pen);  ///< Runs over at the top right.
void DrawCross(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen);
void DrawDot(Canvas& canvas, Random& random, const MarkArea& box,
             const Pen& pen);  ///< Small, near the middle.
void DrawDash(Canvas& canvas, Random& random, const MarkArea& box, const Pen& pen);  ///< One slanting stroke.
void DrawFilling(Canvas& canvas, Random& random, const MarkArea& box,
                 const Pen& pen);  ///< The whole interior.
void DrawScribble(Canvas& canvas, Random& random, const MarkArea& box,
                  const Pen& pen);  ///< Zigzag over the edges.
void DrawRing(Canvas& canvas, Random& random, const MarkArea& box,
              const Pen& pen);  ///< Around the box, not inside.

/// A line of handwriting that nobody can read, from `origin` (on the base line) over `length` pixels;
/// `height` is that of a small letter.
void DrawHandwriting(Canvas& canvas, Random& random, Point origin, double length, double height,
                     const Pen& pen);

/// Dirt: `count` specks of up to `radius` pixels all over the page.
void DrawSpecks(Canvas& canvas, Random& random, int count, double radius);

}  // namespace tavrene::samples
