#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "recognition/precise/PreciseReader.h"
#include "review/OpenForm.h"

namespace tavrene::review {

/// Finds place and ink of every box that both document and profile have, and the places of those that only
/// the profile has. Without a page the boxes have neither. `precise`, which may be null, measures the boxes
/// or gives its second opinion: a box that it reads otherwise is in doubt.
void MeasureForm(OpenForm& form, const imaging::Page* page, std::int16_t fillThreshold,
                 recognition::PreciseReader* precise);

/// Searches the shifts of a form whose document has none, as a run would, but for its own profile alone. They
/// are kept with the form; nothing is written. `precise`, which may be null, searches where it is to read.
void FindLostShifts(OpenForm& form, const imaging::Page& page, std::int16_t fillThreshold,
                    recognition::PreciseReader* precise);

/// The form as it reads against `profile`, at the shifts that its document had when it was opened: what was
/// read against another profile in between may have lost them. Nothing is written. Throws
/// `recognition::ReadingError`.
OpenForm ReadForm(const OpenForm& form, const imaging::Page& page, const profiles::ProfileRecord& profile,
                  std::int16_t fillThreshold, recognition::PreciseReader* precise);

/// What a person has changed since the document was last read or written: a line for another profile, then
/// one for every box that was turned round, with what it was and what it is now.
std::vector<std::string> CorrectionsOf(const OpenForm& form);

/// The number of checked marks.
int CountChecked(const OpenForm& form);

}  // namespace tavrene::review
