#pragma once

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "recognition/precise/CandidatePlaces.h"

namespace tavrene::recognition::precise {

/// A page in cells of `factor` pixels, and what matching looks up on it. Everything is worked out on first
/// use and shared by all profiles.
class CellPage {
  public:
    CellPage(BitPlane cells, int factor) : cells_(std::move(cells)), factor_(factor) {}

    const BitPlane& Cells() const { return cells_; }
    int Factor() const { return factor_; }

    /// A pixel ordinate in cells.
    double ToCells(double pixels) const { return (pixels - (factor_ - 1) / 2.0) / factor_; }
    double ToPixels(double cells) const { return cells * factor_ + (factor_ - 1) / 2.0; }

    /// Where boxes of about this size (cells) may lie; sizes are taken in steps of two cells.
    const CandidatePlaces& PlacesFor(double width, double height);

    /// Cells within `reach` of ink.
    const BitPlane& NearInk(int reach);

    /// The share of the page that `NearInk` covers.
    double NearInkShare(int reach);

  private:
    struct Spread {
        BitPlane plane;
        double share = 0;
    };
    const Spread& SpreadBy(int reach);

    BitPlane cells_;
    int factor_ = 1;
    std::optional<PageCorners> corners_;
    std::map<std::pair<int, int>, CandidatePlaces> places_;
    std::map<int, Spread> near_;
};

/// One page at every scale that profiles ask for.
class CellPages {
  public:
    /// `page` without its noise; must outlive this.
    explicit CellPages(const BitPlane& page) : page_(page) {}

    /// The page halved until `boxSize` pixels are less than 20 cells. A box of 10 to 20 cells is fine enough
    /// to be told from letters and coarse enough for quick work.
    CellPage& ForBoxesOf(double boxSize);

  private:
    const BitPlane& page_;
    std::vector<std::unique_ptr<CellPage>> scales_;
};

}  // namespace tavrene::recognition::precise
