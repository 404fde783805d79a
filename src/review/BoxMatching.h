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

/// A shift for every box of a profile from the marks of a document: that of the mark of its name; or else of
/// the box of `old` (the profile that the document was read with; empty where it is not known) at its place;
/// or else of the mark at its place in the order; or else of the nearest box that has one. 0,0 only where no
/// mark has a shift.
std::vector<recognition::BoxShift> ShiftsOfBoxes(const profiles::ProfileRecord& profile,
                                                 const profiles::ProfileRecord& old,
                                                 std::span<const recognition::ResultMark> marks);

}  // namespace tavrene::review
