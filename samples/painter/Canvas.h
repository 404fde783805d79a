#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tavrene::samples {

/// A place on a canvas: pixels in the page frame (y down from the top left corner); the middle of the first
/// pixel is (0.5, 0.5).
struct Point {
    double x = 0;
    double y = 0;
};

/// Grey values: 0 is black, 255 white.
using Shade = std::uint8_t;
constexpr Shade kBlack = 0;
constexpr Shade kWhite = 255;

/// A grey page to paint on. What is painted darkens the page and never lightens it, as on paper; what lies
/// beyond the edges is dropped. Edges are hard: paint at a multiple of the wanted resolution and reduce for
/// soft ones.
class Canvas {
  public:
    /// A white page; sizes in pixels.
    Canvas(int width, int height, int dpi);

    int Width() const { return width_; }
    int Height() const { return height_; }
    int Dpi() const { return dpi_; }

    /// White outside the page.
    Shade At(int x, int y) const { return Holds(x, y) ? cells_[Index(x, y)] : kWhite; }
    void Set(int x, int y, Shade shade) {
        if (Holds(x, y))
            cells_[Index(x, y)] = shade;
    }
    void Darken(int x, int y, Shade shade) {
        if (Holds(x, y) && shade < cells_[Index(x, y)])
            cells_[Index(x, y)] = shade;
    }

    /// The pixels from column `x` and line `y` on.
    void FillRect(int x, int y, int width, int height, Shade shade = kBlack);

    /// An outline of `thickness` pixels, wholly inside the given rectangle.
    void DrawRect(int x, int y, int width, int height, int thickness, Shade shade = kBlack);

    /// A straight line with round ends.
    void DrawLine(Point from, Point to, double thickness, Shade shade = kBlack);

    void FillDisc(Point centre, double radius, Shade shade = kBlack);

    /// A polygon by the even-odd rule; the last corner is joined to the first.
    void FillPolygon(std::span<const Point> corners, Shade shade = kBlack);

  private:
    bool Holds(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }

    int width_;
    int height_;
    int dpi_;
    std::vector<Shade> cells_;
};

}  // namespace tavrene::samples
