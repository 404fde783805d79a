#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/precise/CandidatePlaces.h"

namespace tavrene::recognition {

/// What is printed on the specimen of a profile, as far as it tells forms apart.
struct SpecimenPrint {
    static constexpr std::size_t kBorders = 12;

    /// Points of the print, spread over the page: pixels of the specimen, page frame as in the profile.
    std::vector<precise::CellPoint> points;
    /// Ink inside each box, a printed letter say, in percent of what is left of it within a border of 1, 2,
    /// ... pixels of the specimen.
    std::vector<std::array<double, kBorders>> inside;
    /// The profile's boxes lie on this print. Where they do not, the image is not the one the profile was
    /// made from, and says nothing.
    bool belongs = false;

    /// The ink inside box `index` as a page would show it that leaves out this border (pixels of the
    /// specimen).
    double Inside(std::size_t index, double border) const;
};

/// Takes the print of a specimen.
SpecimenPrint TakePrint(const imaging::Page& specimen, const profiles::ProfileRecord& profile);

}  // namespace tavrene::recognition
