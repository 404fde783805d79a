#pragma once

#include <span>
#include <vector>

#include "recognition/precise/CandidatePlaces.h"

namespace tavrene::recognition::precise {

/// Where the places of a profile lie on a page: an affine map, told as what is added to a place. Cells, grid
/// frame.
struct PageMap {
    CellPoint middle;  ///< The place that is only shifted.
    double shiftX = 0;
    double shiftY = 0;
    double xByX = 0;  ///< Stretch along the rows.
    double xByY = 0;  ///< With `yByX`: turn and shear.
    double yByX = 0;
    double yByY = 0;

    CellPoint operator()(const CellPoint& place) const {
        const double u = place.x - middle.x;
        const double v = place.y - middle.y;
        return {place.x + shiftX + xByX * u + xByY * v, place.y + shiftY + yByX * u + yByY * v};
    }

    double Turn() const { return (yByX - xByY) / 2; }  ///< Radians.
};

/// How far paper and scanners move a form. Cells, radians and shares.
struct PageReach {
    double shift = 0;
    double turn = 0;
    double stretch = 0;
};

/// `map` lies within reach, with a little room for what a fit adds.
bool IsWithin(const PageMap& map, const PageReach& reach);

/// A place of the profile and where it was seen on the page.
struct Sighting {
    CellPoint place;
    CellPoint seen;
    double weight = 1;
};

/// The map that explains the sightings best, by least squares with a prior towards no turn, no stretch and no
/// shear, so that also one sighting, or several in one column, give a sensible map.
PageMap FitMap(const CellPoint& middle, std::span<const Sighting> sightings, double shiftReach);

}  // namespace tavrene::recognition::precise
