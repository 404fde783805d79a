#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "profiles/ProfileRecord.h"
#include "recognition/ResultDocument.h"
#include "recognition/ShiftSpiral.h"

namespace tavrene::review {

/// For every box of a profile the mark of the same name, by index; none where the document has no such name.
/// Of several equal names the first belongs to the first, the second to the second, and so on.
std::vector<std::optional<std::size_t>> MarksOfBoxes(const profiles::ProfileRecord& profile,
                                                     std::span<const recognition::ResultMark> marks);

/// A shift for every box of a profile: that of its mark, or else that of the nearest box that has one, or
/// else 0,0.
std::vector<recognition::BoxShift> ShiftsOfBoxes(const profiles::ProfileRecord& profile,
                                                 std::span<const recognition::ResultMark> marks);

}  // namespace tavrene::review
