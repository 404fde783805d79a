#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "recognition/Outline.h"
#include "recognition/precise/BitPlane.h"

namespace tavrene::recognition::precise {

/// An outline on the page: how far it lies from where it was looked for (pixels, grid frame), and how much of
/// it is there.
struct OutlineSight {
    double dx = 0;
    double dy = 0;
    double ratio = 0;  ///< Share of its cells that have ink within the play.
};

/// Finds outlines to the pixel. Keeps its memory between boxes.
class OutlineFinder {
  public:
    /// `play` is how far, in pixels, ink may lie beside the outline. The plane must outlive this.
    OutlineFinder(const BitPlane& pixels, int play) : pixels_(pixels), play_(play) {}

    /// The best place for the outline of `expected` within `reach` columns and rows; among equal ones the
    /// middle, which is the middle of a thick line.
    OutlineSight Find(const GridRect& expected, int reach);

  private:
    void SumSides(const GridRect& expected, int reach);
    int CountAt(int dx, int dy, int reach) const;

    const BitPlane& pixels_;
    int play_;
    int width_ = 0;
    int height_ = 0;
    // One line a possible place of each side; running sums along it.
    std::vector<int> lower_;
    std::vector<int> upper_;
    std::vector<int> left_;
    std::vector<int> right_;
    std::vector<int> counts_;
    std::vector<char> ink_;
};

/// A box on its way from the map to its pixel. Pixels, grid frame.
struct BoxToRefine {
    double x = 0;  ///< Its middle on the page, roughly.
    double y = 0;
    double mapX = 0;  ///< Its shift by the map alone.
    double mapY = 0;
    double shiftX = 0;  ///< In: where to look first. Out: its shift to the pixel.
    double shiftY = 0;
    bool found = false;  ///< Its print was seen there; else the place is its neighbours' or the map's.
    double ratio = 0;
};

/// The rectangle of box `index` at a whole shift, grid frame.
using PlaceAt = std::function<GridRect(std::size_t index, int dx, int dy)>;

/// Looks every box up on the page around where the map puts it. A box whose print cannot be told, hidden by
/// its mark say, takes its place from its neighbours. `unit` is how many pixels a pixel of 200 dpi is.
void RefineBoxes(std::span<BoxToRefine> boxes, OutlineFinder& finder, double unit, const PlaceAt& placeAt);

}  // namespace tavrene::recognition::precise
