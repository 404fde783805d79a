#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "reading/ReadingClasses.h"
#include "recognition/precise/PreciseReading.h"

namespace tavrene::samples {

/// A profile with the print of its specimen.
struct KnownForm {
    profiles::ProfileRecord Profile;
    recognition::SpecimenPrint Print;
};

/// The blank form of a design as a specimen, and its profile of that name.
KnownForm Know(const FormDesign& design, int dpi, const char* name);

/// A scan, the profiles that are loaded, and the truth.
struct ReadingPage {
    imaging::Page Scan;
    std::vector<profiles::ProfileRecord> Profiles;
    std::vector<recognition::SpecimenPrint> Prints;  ///< One a profile.
    int Form = -1;                                   ///< Index of the page's profile; -1 for a stranger.
    /// Of each box of that profile: whether it was marked; nothing where a stamp makes it anyone's guess.
    std::vector<std::optional<bool>> Marked;
};

/// The same class and seed always give the same page.
ReadingPage PaintReadingPage(const ReadingClass& kind, std::uint64_t seed);

}  // namespace tavrene::samples
