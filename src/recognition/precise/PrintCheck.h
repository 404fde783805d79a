#pragma once

#include <span>

#include "recognition/precise/Alignment.h"
#include "recognition/precise/CellPage.h"

namespace tavrene::recognition::precise {

/// How far the print of a specimen lies on the ink of a page: 1 is wholly, 0 no better than by chance.
/// `points` are where the profile would have them on the page, in cells; `reach` (cells) is how near ink must
/// be.
double PrintShare(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                  std::span<const SoughtBox> boxes, int reach);

/// The map, turned and stretched so that also the print far from the boxes lies on ink: a few boxes, or one
/// column of them, leave that open.
PageMap TurnedByPrint(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                      std::span<const SoughtBox> boxes, double shiftReach);

}  // namespace tavrene::recognition::precise
