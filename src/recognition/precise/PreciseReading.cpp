#include "recognition/precise/PreciseReading.h"

#include <cmath>

#include "app/Numeric.h"
#include "recognition/precise/BoxRefinement.h"
#include "recognition/precise/FormMatch.h"
#include "recognition/precise/PreciseMark.h"

namespace tavrene::recognition {
namespace {

using precise::BitPlane;
using precise::CellPoint;
using precise::FormMatch;
using profiles::OmrBox;
using profiles::ProfileRecord;

// A letter printed in a box is taken off its ink; less than this is dirt of the specimen.
constexpr double kPrintedInside = 2;

// A pixel of 200 dpi, and how far ink may lie beside an outline, in pixels of the page.
double UnitOf(const imaging::Page& page, const ProfileRecord& profile) {
    return precise::PixelsPerMm(page, profile) * 25.4 / 200;
}

std::vector<precise::BoxToRefine> Mapped(const FormMatch& match, const ProfileRecord& profile,
                                         const imaging::Page& page, const FormScale& scale) {
    std::vector<precise::BoxToRefine> boxes;
    boxes.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const OmrBox& box = profile.Boxes[k];
        const CellPoint mapped = match.alignment.map(match.boxes[k].place);
        const CellPoint seen = match.alignment.seen[k].value_or(mapped);
        // A shift is told against the upright place, whichever way the page lies.
        const CellPoint upright =
            precise::NominalPlace(page, scale, (box.L + box.R) / 2.0, (box.T + box.B) / 2.0, false);
        precise::BoxToRefine refined;
        refined.x = match.page->ToPixels(mapped.x);
        refined.y = match.page->ToPixels(mapped.y);
        refined.mapX = refined.x - upright.x;
        refined.mapY = refined.y - upright.y;
        refined.shiftX = match.page->ToPixels(seen.x) - upright.x;
        refined.shiftY = match.page->ToPixels(seen.y) - upright.y;
        boxes.push_back(refined);
    }
    return boxes;
}

std::vector<BoxShift> RefinedShifts(const imaging::Page& page, const ProfileRecord& profile,
                                    const BitPlane& pixels, const FormMatch& match) {
    const FormScale scale = ScaleBetween(page, profile);
    const double unit = UnitOf(page, profile);
    precise::OutlineFinder finder(pixels, std::max(1, static_cast<int>(std::lround(unit))));
    std::vector<precise::BoxToRefine> boxes = Mapped(match, profile, page, scale);
    RefineBoxes(boxes, finder, unit, [&](std::size_t index, int dx, int dy) {
        return PlaceOf(page.grid, profile.Boxes[index], scale,
                       {static_cast<std::int16_t>(dx), static_cast<std::int16_t>(dy)});
    });
    std::vector<BoxShift> shifts;
    shifts.reserve(boxes.size());
    for (const precise::BoxToRefine& box : boxes)
        shifts.push_back({app::RoundToInt16(box.shiftX), app::RoundToInt16(box.shiftY)});
    return shifts;
}

std::vector<MarkReading> ReadMarksAt(const imaging::Page& page, const BitPlane& pixels,
                                     const ProfileRecord& profile, std::span<const BoxShift> shifts,
                                     const SpecimenPrint* print, std::int16_t fillThreshold) {
    const FormScale scale = ScaleBetween(page, profile);
    const int border = precise::BorderOf(page);
    std::vector<MarkReading> marks;
    marks.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const GridRect place = PlaceOf(page.grid, profile.Boxes[k], scale, shifts[k]);
        const double printed =
            print != nullptr && print->belongs ? print->Inside(k, border / static_cast<double>(scale.sx)) : 0;
        double fill = precise::FillInside(pixels, place, border);
        if (printed >= kPrintedInside)
            fill = std::max(0.0, fill - printed);
        marks.push_back(
            {profile.Boxes[k].Name, shifts[k], OnPage(page.grid, place), fill, fill >= fillThreshold});
    }
    return marks;
}

}  // namespace

PreciseReading ReadPrecisely(const imaging::Page& page, std::span<const ProfileRecord> profiles,
                             const PrintSource& prints, std::int16_t fillThreshold) {
    const BitPlane pixels = WithoutNoise(precise::PlaneOf(page.grid));
    precise::CellPages cells(pixels);
    const FormMatch match = precise::FormMatcher(page, cells, profiles, prints).Match();
    PreciseReading reading;
    if (match.profile < 0)
        return reading;
    reading.nearest = match.profile;
    reading.Confidence = app::RoundToInt16(match.alignment.share * 100);
    reading.print = match.print;
    if (!match.accepted)
        return reading;
    reading.winner = match.profile;
    reading.turned = match.turned;
    const auto index = static_cast<std::size_t>(match.profile);
    const std::vector<BoxShift> shifts = RefinedShifts(page, profiles[index], pixels, match);
    reading.marks = ReadMarksAt(page, pixels, profiles[index], shifts, prints(index), fillThreshold);
    return reading;
}

std::vector<MarkReading> ReadMarksPrecisely(const imaging::Page& page, const ProfileRecord& profile,
                                            std::span<const BoxShift> shifts, const SpecimenPrint* print,
                                            std::int16_t fillThreshold) {
    const BitPlane pixels = WithoutNoise(precise::PlaneOf(page.grid));
    return ReadMarksAt(page, pixels, profile, shifts, print, fillThreshold);
}

}  // namespace tavrene::recognition
