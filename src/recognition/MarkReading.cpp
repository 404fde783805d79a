#include "recognition/MarkReading.h"

#include <algorithm>

#include "app/Numeric.h"
#include "recognition/FormScale.h"
#include "recognition/SampleBoxes.h"

namespace tavrene::recognition {
namespace {

using profiles::PrintedBox;
using profiles::ProfileRecord;

// Ink this close to where the outline should be is left out of the count: lines are up to three pixels wide,
// and the place may be wrong by one or two. The price: a full box reads well below 100 percent, and one of
// less than nine pixels is never checked.
constexpr int kBorder = 4;

// The shift along one axis as a line through the two extreme sampled boxes.
struct AxisSpread {
    double low = 0;  // the smallest ordinate of the sampled boxes
    double shiftAtLow = 0;
    double slope = 0;

    // Boxes beyond the low extreme are shifted against the slope, as if mirrored at it: wrong by twice their
    // distance times the slope, which is little, because the extremes of the sample are nearly those of the
    // form. It stays, since the same scan has to read the same as in all documents that there are.
    std::int16_t ShiftAt(std::int16_t ordinate) const {
        const double away = (ordinate - low) * slope;
        return app::RoundToInt16(ordinate <= low ? shiftAtLow - away : away + shiftAtLow);
    }
};

template <typename Ordinate, typename Shift>
AxisSpread SpreadAlong(const std::vector<std::size_t>& sample, Ordinate ordinate, Shift shift,
                       const char* sharedLine) {
    std::size_t low = sample.front();
    std::size_t high = sample.front();
    for (const std::size_t index : sample) {
        if (ordinate(index) < ordinate(low))
            low = index;
        if (ordinate(index) > ordinate(high))
            high = index;
    }
    const double distance = ordinate(high) - ordinate(low);
    if (distance == 0)
        throw ReadingError(std::string("the sampled boxes of the profile all lie in one ") + sharedLine +
                           ", so the page's shift cannot be spread");
    return {static_cast<double>(ordinate(low)), static_cast<double>(shift(low)),
            (shift(high) - shift(low)) / distance};
}

std::optional<double> FillOf(const imaging::WorkGrid& grid, const GridRect& place) {
    // 16 bits, as the forms that have been read were: an interior beyond 181 x 181 is misread.
    const std::int16_t area = app::WrapToInt16(InteriorArea(place));
    if (area == 0)
        return std::nullopt;
    const std::int64_t ink = CountInk(grid, CountedPart(place));
    return static_cast<double>(ink * 100) / area;
}

}  // namespace

GridRect CountedPart(const GridRect& place) {
    return {place.row0 + kBorder, place.col0 + kBorder, place.row1 - kBorder, place.col1 - kBorder};
}

std::int64_t InteriorArea(const GridRect& place) {
    return (std::int64_t{place.col1} - place.col0 - 1) * (std::int64_t{place.row1} - place.row0 - 1);
}

GridRect PlaceOf(const imaging::WorkGrid& grid, const PrintedBox& box, const FormScale& scale,
                 const BoxShift& shift) {
    const double height = grid.Rows();
    const auto row = [&](std::int16_t ordinate) {
        return app::RoundToInt(imaging::FlipVertically(height, scale.Y(ordinate)) + shift.dy);
    };
    const auto column = [&](std::int16_t ordinate) { return app::RoundToInt(scale.X(ordinate) + shift.dx); };
    return {row(box.lower), column(box.L), row(box.upper), column(box.R)};
}

imaging::PageRect OnPage(const imaging::WorkGrid& grid, const GridRect& place) {
    return {static_cast<double>(place.col0),
            static_cast<double>(imaging::FlipVertically(grid.Rows(), place.row1)),
            static_cast<double>(place.col1 - place.col0), static_cast<double>(place.row1 - place.row0)};
}

void SpreadShifts(const ProfileRecord& profile, std::span<BoxShift> shifts) {
    const std::vector<std::size_t> sample = SampleBoxes(profile.Boxes.size());
    const auto left = [&profile](std::size_t index) { return int{profile.Boxes[index].L}; };
    const auto lower = [&profile](std::size_t index) { return int{profile.Boxes[index].lower}; };
    const AxisSpread alongX = SpreadAlong(
        sample, left, [&shifts](std::size_t index) { return shifts[index].dx; }, "column");
    const AxisSpread alongY = SpreadAlong(
        sample, lower, [&shifts](std::size_t index) { return shifts[index].dy; }, "row");
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k)
        shifts[k] = {alongX.ShiftAt(profile.Boxes[k].L), alongY.ShiftAt(profile.Boxes[k].lower)};
}

int CountInk(const imaging::WorkGrid& grid, const GridRect& rect) {
    const int firstColumn = std::max(0, rect.col0);
    const int lastColumn = std::min(grid.Width() - 1, rect.col1);
    const int lastRow = std::min(grid.Rows() - 1, rect.row1);
    int count = 0;
    for (int row = std::max(0, rect.row0); row <= lastRow; ++row)
        count += grid.CountInkInRow(row, firstColumn, lastColumn);
    return count;
}

BoxMeasure MeasureBox(const imaging::Page& page, const ProfileRecord& profile, std::size_t index,
                      const BoxShift& shift) {
    const GridRect place = PlaceOf(page.grid, profile.Boxes[index], ScaleBetween(page, profile), shift);
    return {OnPage(page.grid, place), FillOf(page.grid, place)};
}

std::vector<MarkReading> ReadMarks(const imaging::Page& page, const ProfileRecord& profile,
                                   std::span<const BoxShift> shifts, std::int16_t fillThreshold) {
    std::vector<MarkReading> readings;
    readings.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const std::string& name = profile.Boxes[k].Name;
        const BoxMeasure measure = MeasureBox(page, profile, k, shifts[k]);
        if (!measure.fill)
            throw ReadingError("the box " + name + " has no area that could be read");
        readings.push_back({name, shifts[k], measure.rect, *measure.fill, *measure.fill >= fillThreshold});
    }
    return readings;
}

}  // namespace tavrene::recognition
