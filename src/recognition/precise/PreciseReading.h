#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/Classification.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/SpecimenPrint.h"

namespace tavrene::recognition {

/// The print of the specimen of profile `index`; null where there is none. Asked only when it matters.
using PrintSource = std::function<const SpecimenPrint*(std::size_t index)>;

/// Where the boxes of a profile lie on a page.
struct FormPlaces {
    std::vector<BoxShift> shifts;  ///< One a box, from where the profile has it upright.
    bool turned = false;           ///< The page lies upside down.
};

/// What precise alignment makes of a page.
struct PreciseReading {
    int winner = -1;              ///< Index of the profile, or -1 when the page is none of them.
    std::int16_t Confidence = 0;  ///< Percent of the winner's boxes that lie where they should.
    bool turned = false;          ///< The page lies upside down. `Shift` and `rect` tell where the boxes are.
    std::vector<MarkReading> marks;  ///< The winner's boxes, in its order.
};

/// Decides which of the active profiles the page is a form of, and reads it. All boxes of a profile are laid
/// on the page by one map (shift, turn, stretch), the print of the specimen decides whether it is the form,
/// and each box is then found to the pixel. Profiles without boxes are passed over. Checked when the ink
/// inside reaches `fillThreshold` percent of the area that is counted.
PreciseReading ReadPrecisely(const imaging::Page& page, std::span<const profiles::ProfileRecord> profiles,
                             const PrintSource& prints, std::int16_t fillThreshold);

/// The reading as a classification of so many profiles, so that the log tells of both ways in the same words.
Classification AsClassification(const PreciseReading& reading, std::size_t profiles);

/// Reads the boxes of a profile at known places as precise alignment measures marks. `print` may be null.
std::vector<MarkReading> ReadMarksPrecisely(const imaging::Page& page, const profiles::ProfileRecord& profile,
                                            const FormPlaces& places, const SpecimenPrint* print,
                                            std::int16_t fillThreshold);

}  // namespace tavrene::recognition
