#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// How a page slants: over 1 pixel along, its rows rise and its columns lean to the left by this share of a
/// pixel. A page turned anticlockwise by d degrees has about d x 3.14 / 180.
using Slant = double;

/// The slant of a page by its printed lines and lines of text: that at which the ends of ink towards higher
/// rows lie on the fewest rows. 0 where it is less than a fifth of a degree; at most two and a half degrees
/// are looked for.
Slant SlantOf(const imaging::WorkGrid& page);

/// Sets a page upright and puts boxes found there back. Every pixel is moved by whole pixels, first along its
/// column and then along its row, so that none is lost or doubled, except at the rim.
class Straightened {
  public:
    Straightened(const imaging::WorkGrid& page, Slant slant);

    const imaging::WorkGrid& Page() const { return page_; }

    /// A box of the straightened page where it is on the page itself, of the same size around its middle.
    BoxRect PutBack(const BoxRect& box) const;

  private:
    Slant slant_;
    int middleColumn_;
    int middleRow_;
    imaging::WorkGrid page_;
};

}  // namespace tavrene::boxes
