#pragma once

#include <optional>
#include <span>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/precise/PreciseReading.h"

namespace tavrene::recognition {

/// Whether the known shifts of boxes (one entry a box) are those of a page that lies upside down. Not while
/// none is known.
bool LiesUpsideDown(const imaging::Page& page, const profiles::ProfileRecord& profile,
                    std::span<const std::optional<BoxShift>> known);

/// Of the known shifts of boxes (one entry a box) those that one map agrees with. What lies farther off than
/// paper bends belongs to a box that lay elsewhere in the profile when it was read. None where most disagree.
std::vector<std::optional<BoxShift>> AgreeingShifts(const imaging::Page& page,
                                                    const profiles::ProfileRecord& profile,
                                                    std::span<const std::optional<BoxShift>> known);

/// The places of all boxes of a profile when only some are known (one entry a box): a box without one takes
/// its place from the map that fits the others, also on a page that lies upside down. 0,0 when none is known.
FormPlaces CompleteShifts(const imaging::Page& page, const profiles::ProfileRecord& profile,
                          std::span<const std::optional<BoxShift>> known);

}  // namespace tavrene::recognition
