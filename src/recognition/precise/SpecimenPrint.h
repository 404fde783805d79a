#pragma once

#include <array>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/InkBeside.h"
#include "recognition/precise/CandidatePlaces.h"

namespace tavrene::recognition {

/// What is printed on the specimen of a profile, as far as it tells forms apart.
struct SpecimenPrint {
    /// Points of the print, spread over the page: pixels and page frame of the profile.
    std::vector<precise::CellPoint> points;
    /// For each box what is printed in it, a letter say, and a little around that: the box in pixels of the
    /// specimen, from its lower left corner. Empty where nothing is printed.
    std::vector<precise::BitPlane> letters;
    /// Its ink, in percent of the box less 1, 2, ... pixels of the profile on every side.
    std::vector<std::array<double, 12>> inside;
    /// What is printed close outside of each box.
    std::vector<SideInk> beside;
    /// The profile's boxes lie on this print. Where they do not, the image is not the one the profile was
    /// made from, and says nothing.
    bool belongs = false;
};

/// Takes the print of a specimen.
SpecimenPrint TakePrint(const imaging::Page& specimen, const profiles::ProfileRecord& profile);

}  // namespace tavrene::recognition
