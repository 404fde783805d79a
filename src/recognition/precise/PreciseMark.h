#pragma once

#include <optional>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/FormScale.h"
#include "recognition/Outline.h"
#include "recognition/precise/BitPlane.h"

namespace tavrene::recognition::precise {

/// Ink within the box less `border` pixels on every side, in percent of that area; 0 for a box that this
/// leaves nothing of.
double FillInside(const BitPlane& pixels, const GridRect& place, int border);

/// The same beside what is printed in the box; nothing where that leaves too little of it to judge by:
/// `letter` as in `SpecimenPrint`, stretched over the box, and turned round on a page that lies upside down.
std::optional<double> FillBeside(const BitPlane& pixels, const GridRect& place, int border,
                                 const BitPlane& letter, bool turned);

/// How much of a box is left out on every side: four pixels, and on pages finer than 300 dpi, where the
/// printed line is broader than that, as much of the box as there. A page that tells no resolution has that
/// of the profile.
int BorderOf(const imaging::Page& page, const profiles::ProfileRecord& profile);

/// The smaller side of the profile's middling box, in pixels of the page.
double TypicalBox(const profiles::ProfileRecord& profile, const FormScale& scale);

}  // namespace tavrene::recognition::precise
