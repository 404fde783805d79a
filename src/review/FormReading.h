#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "recognition/FormReader.h"
#include "recognition/precise/PreciseReader.h"
#include "review/OpenForm.h"
#include "review/doubts/DoubtCache.h"

namespace tavrene::review {

/// Takes over what the form's document holds, as it is when it is opened. `profile` is the document's, with
/// its groups.
void TakeDocument(OpenForm& form, const profiles::ProfileRecord& profile,
                  std::vector<profiles::BoxGroup> groups);

/// Finds place and ink of every box that both document and profile have, and the places of those that only
/// the profile has. Without a page there is nothing of it. `precise`, which may be null, measures the boxes
/// where it is to read.
void PlaceBoxes(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
                recognition::PreciseReader* precise);

/// The same, and what is in doubt, which costs most of a reading: where `precise` does not read, it is asked
/// for a second opinion.
void MeasureForm(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
                 recognition::PreciseReader* precise);

/// Searches the shifts of a form whose document has none, as a run would, but for its own profile alone. They
/// are kept with the form; nothing is written. `precise`, which may be null, searches where it is to read.
void FindLostShifts(OpenForm& form, const imaging::Page& page, std::int16_t fillThreshold,
                    recognition::PreciseReader* precise);

/// The form as it reads against `profile` with its groups, at the shifts that its document had when it was
/// opened: what was read against another profile in between may have lost them. Nothing is written. Throws
/// `recognition::ReadingError`.
OpenForm ReadForm(const OpenForm& form, const imaging::Page& page, const profiles::ProfileRecord& profile,
                  std::vector<profiles::BoxGroup> groups, std::int16_t fillThreshold,
                  recognition::PreciseReader* precise);

/// A profile with the groups of its boxes.
struct GroupedProfile {
    const profiles::ProfileRecord& record;
    std::span<const profiles::BoxGroup> groups;
};

/// What is in doubt of a form whose result has just been read from its page and has become its document: as
/// measuring it again would find it.
FormDoubts DoubtsOf(const recognition::FormReading& reading, const GroupedProfile& profile,
                    std::int16_t fillThreshold, recognition::PreciseReader* precise);

/// What was found to be in doubt of a form that was measured.
FormDoubts DoubtsOf(const OpenForm& form);

/// What a person has changed since the document was last read or written: a line for another profile, then
/// one for every box that was turned round, with what it was and what it is now.
std::vector<std::string> CorrectionsOf(const OpenForm& form);

/// The row (from 1) of the n-th box of the group that the box of `row` belongs to; of a box without a group,
/// and outside the rows, the n-th row of all. 0 where there is none.
int RowInGroup(const OpenForm& form, int row, int n);

/// The number of checked marks.
int CountChecked(const OpenForm& form);

}  // namespace tavrene::review
