#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "imaging/PageRect.h"
#include "profiles/ProfileRecord.h"
#include "recognition/FormScale.h"
#include "recognition/Outline.h"
#include "recognition/ShiftSpiral.h"

namespace tavrene::recognition {

/// Arithmetic that a profile makes impossible; `what()` says why in plain words.
class ReadingError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// One box as it was read.
struct MarkReading {
    std::string Name;
    BoxShift Shift;
    imaging::PageRect rect;  ///< Where the box lies on the image: page frame, image pixels.
    double fill = 0;         ///< Percent inked inside: of all the interior; of what is counted if precise.
    bool Checked = false;
};

/// Fills `shifts` (one a box) from those of the sampled boxes: linear between the leftmost and the rightmost,
/// and between the highest and the lowest sampled box, by their lower edges. Throws `ReadingError` when the
/// sampled boxes share one column or one row.
void SpreadShifts(const profiles::ProfileRecord& profile, std::span<BoxShift> shifts);

/// Where a shifted box lies on a page: grid frame.
GridRect PlaceOf(const imaging::WorkGrid& grid, const profiles::PrintedBox& box, const FormScale& scale,
                 const BoxShift& shift);

/// The part of a box whose ink is counted, clear of the outline; nothing of a small box. Grid frame.
GridRect CountedPart(const GridRect& place);

/// The cells inside the outline of a box.
std::int64_t InteriorArea(const GridRect& place);

/// A place in the page frame.
imaging::PageRect OnPage(const imaging::WorkGrid& grid, const GridRect& place);

/// Ink cells in the rectangle (grid frame, inclusive) after it is clamped to the picture; 0 when that leaves
/// nothing.
int CountInk(const imaging::WorkGrid& grid, const GridRect& rect);

/// Where a box lies on a page, and how much of it is ink.
struct BoxMeasure {
    imaging::PageRect rect;      ///< Page frame, image pixels.
    std::optional<double> fill;  ///< As in `MarkReading`; none for a box without interior.
};

/// Measures box `index` (from 0) of the profile at its shifted place.
BoxMeasure MeasureBox(const imaging::Page& page, const profiles::ProfileRecord& profile, std::size_t index,
                      const BoxShift& shift);

/// Reads every box of the profile, in its order, at its shifted place. Checked when the fill reaches
/// `fillThreshold` percent. Throws `ReadingError` for a box without interior.
std::vector<MarkReading> ReadMarks(const imaging::Page& page, const profiles::ProfileRecord& profile,
                                   std::span<const BoxShift> shifts, std::int16_t fillThreshold);

}  // namespace tavrene::recognition
