#pragma once

#include <vector>

#include "boxes/BoxSheet.h"

namespace tavrene::samples {

/// What printing and scanning do to a page, one at a time; the grid is changed in place.

/// Turns over a share of all pixels.
void AddSpecks(imaging::WorkGrid& grid, Random& dice, double share);

/// Takes the outermost pixel off everything printed, or adds one all around.
void Erode(imaging::WorkGrid& grid);
void Dilate(imaging::WorkGrid& grid);

/// Turns the page about its middle, anticlockwise; the true boxes follow: a side is then where its middle is.
void Tilt(imaging::WorkGrid& grid, std::vector<TrueBox>& truth, double degrees);

}  // namespace tavrene::samples
