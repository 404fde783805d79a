#pragma once

#include <span>
#include <vector>

#include "imaging/PageReader.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/SecondOpinion.h"
#include "recognition/precise/SpecimenPrint.h"
#include "review/doubts/Doubts.h"

namespace tavrene::review {

/// A form and the ink of its boxes: all in the order of the profile's boxes.
struct MeasuredForm {
    const imaging::Page& page;
    std::span<const recognition::BoxMeasure> measures;
    std::vector<std::optional<bool>> checked;  ///< In the document; none for a box that it lacks.
    bool turned = false;                       ///< The page lies upside down.
    bool precise = false;                      ///< The boxes were found to the pixel.
};

/// What the page tells of each box. `opinion` is the second look's, `print` what is printed on the form's
/// specimen; without it (null) ink beside boxes says nothing.
std::vector<BoxEvidence> EvidenceOf(const MeasuredForm& form, const recognition::SecondOpinion& opinion,
                                    const recognition::SpecimenPrint* print);

}  // namespace tavrene::review
