#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/precise/CellPage.h"
#include "recognition/precise/MapSearch.h"

namespace tavrene::recognition {

/// What is printed on the specimen of a profile, as far as it tells forms apart.
struct SpecimenPrint {
    static constexpr std::size_t kBorders = 12;

    /// Points of the print, spread over the page: pixels of the specimen, page frame as in the profile.
    std::vector<precise::CellPoint> points;
    /// Ink inside each box, a printed letter say, in percent of what is left of it within a border of 1, 2, ...
    /// pixels of the specimen.
    std::vector<std::array<double, kBorders>> inside;
    /// The profile's boxes lie on this print. Where they do not, the image is not the one the profile was made
    /// from, and says nothing.
    bool belongs = false;

    /// The ink inside box `index` as a page would show it that leaves out this border (pixels of the specimen).
    double Inside(std::size_t index, double border) const;
};

/// Takes the print of a specimen.
SpecimenPrint TakePrint(const imaging::Page& specimen, const profiles::ProfileRecord& profile);

namespace precise {

/// How far the print of a specimen lies on the ink of a page: 1 is wholly, 0 no better than by chance.
/// `points` are where the profile would have them on the page, in cells; `reach` (cells) is how near ink must be.
double PrintShare(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                  std::span<const SoughtBox> boxes, int reach);

/// The map, turned and stretched so that also the print far from the boxes lies on ink: a few boxes, or one
/// column of them, leave that open.
PageMap TurnedByPrint(CellPage& page, std::span<const CellPoint> points, const Alignment& alignment,
                      std::span<const SoughtBox> boxes, double shiftReach);

}  // namespace precise
}  // namespace tavrene::recognition
