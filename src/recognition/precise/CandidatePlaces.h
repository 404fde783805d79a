#pragma once

#include <optional>
#include <vector>

#include "recognition/precise/PageCorners.h"

namespace tavrene::recognition::precise {

/// A place on a page in cells, grid frame; whole numbers are the middles of cells.
struct CellPoint {
    double x = 0;
    double y = 0;
};

/// Where on a page boxes of one size may lie: wherever at least three of the four corners are.
class CandidatePlaces {
  public:
    /// How far, in columns and in rows, `IsNear` looks.
    static constexpr int kNear = 3;

    /// `corners` are those of the page, each widened by one cell; the size is in cells.
    CandidatePlaces(const PageCorners& corners, int width, int height);

    /// Whether the middle of a candidate lies within `kNear` cells, in constant time.
    bool IsNear(double x, double y) const {
        constexpr double half =
            0.5;  // places on the page are not negative, and this is asked millions of times
        return near_.Has(static_cast<int>(x + half), static_cast<int>(y + half));
    }

    /// The candidate nearest to a place, no farther than `reach`.
    std::optional<CellPoint> Nearest(const CellPoint& place, double reach) const;

    /// The middles of all candidates within `reach` columns and rows.
    std::vector<CellPoint> Around(const CellPoint& place, double reach) const;

    std::size_t Count() const { return middles_.size(); }

    /// The share of the page that is near a candidate.
    double Coverage() const { return coverage_; }

  private:
    void Collect(const BitPlane& places, double middleX, double middleY);
    void FillTiles();
    template <typename Visit>
    void VisitTiles(const CellPoint& place, double reach, Visit visit) const;

    std::vector<CellPoint> middles_;  // by tile
    std::vector<int> tileStart_;
    int tilesAcross_ = 0;
    int tilesDown_ = 0;
    BitPlane near_;
    double coverage_ = 0;
};

}  // namespace tavrene::recognition::precise
