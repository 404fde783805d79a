#pragma once

#include "profiles/ProfileRecord.h"
#include "recognition/FormScale.h"
#include "recognition/Outline.h"
#include "recognition/precise/BitPlane.h"

namespace tavrene::recognition::precise {

/// Ink within the box less four pixels on every side, in percent of that area; 0 for a box that this leaves
/// nothing of.
double FillInside(const BitPlane& pixels, const GridRect& place);

/// The smaller side of the profile's middling box, in pixels of the page.
double TypicalBox(const profiles::ProfileRecord& profile, const FormScale& scale);

}  // namespace tavrene::recognition::precise
