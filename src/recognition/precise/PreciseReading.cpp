#include "recognition/precise/PreciseReading.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "app/Numeric.h"
#include "recognition/precise/BoxRefinement.h"
#include "recognition/precise/FormMatch.h"
#include "recognition/precise/PreciseMark.h"

namespace tavrene::recognition {
namespace {

using precise::BitPlane;
using precise::CellPoint;
using precise::FormMatch;
using profiles::ProfileRecord;

// A pixel of 200 dpi, which is also how far ink may lie beside an outline, in pixels of the page.
double UnitOf(const imaging::Page& page, const ProfileRecord& profile) {
    return precise::DpiOf(page, profile) / 200;
}

std::vector<precise::BoxToRefine> Mapped(const FormMatch& match, const ProfileRecord& profile,
                                         const imaging::Page& page, const FormScale& scale) {
    std::vector<precise::BoxToRefine> boxes;
    boxes.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const CellPoint mapped = match.alignment.map(match.boxes[k].place);
        const CellPoint seen = match.alignment.seen[k].value_or(mapped);
        // A shift is told against the upright place, whichever way the page lies.
        const CellPoint upright = precise::NominalPlace(page, scale, profile.Boxes[k], false);
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
                       {app::RoundToInt16(dx), app::RoundToInt16(dy)});
    });
    std::vector<BoxShift> shifts;
    shifts.reserve(boxes.size());
    for (const precise::BoxToRefine& box : boxes)
        shifts.push_back({app::RoundToInt16(box.shiftX), app::RoundToInt16(box.shiftY)});
    return shifts;
}

// Where a letter fills a coarse box, only its ink can be taken off; else what is near it is left out.
double FillOfLettered(const BitPlane& pixels, const GridRect& place, int border, const SpecimenPrint& print,
                      std::size_t index, const FormScale& scale, bool turned) {
    if (const auto beside = precise::FillBeside(pixels, place, border, print.letters[index], turned))
        return *beside;
    const auto& inside = print.inside[index];
    const auto onSpecimen = static_cast<std::size_t>(std::max(1L, std::lround(border / double{scale.sx})));
    return std::max(
        0.0, precise::FillInside(pixels, place, border) - inside[std::min(onSpecimen, inside.size()) - 1]);
}

std::vector<MarkReading> ReadMarksAt(const imaging::Page& page, const BitPlane& pixels,
                                     const ProfileRecord& profile, const FormPlaces& places,
                                     const SpecimenPrint* print, std::int16_t fillThreshold) {
    const FormScale scale = ScaleBetween(page, profile);
    const int border = precise::BorderOf(page, profile);
    std::vector<MarkReading> marks;
    marks.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const GridRect place = PlaceOf(page.grid, profile.Boxes[k], scale, places.shifts[k]);
        const double fill = print != nullptr && print->belongs && print->letters[k].Width() > 0
                                ? FillOfLettered(pixels, place, border, *print, k, scale, places.turned)
                                : precise::FillInside(pixels, place, border);
        marks.push_back(
            {profile.Boxes[k].Name, places.shifts[k], OnPage(page.grid, place), fill, fill >= fillThreshold});
    }
    return marks;
}

}  // namespace

PreciseReading ReadPrecisely(const imaging::Page& page, std::span<const ProfileRecord> profiles,
                             const PrintSource& prints, std::int16_t fillThreshold) {
    const BitPlane pixels = WithoutNoise(precise::PlaneOf(page.grid));
    precise::CellPages cells(pixels);
    // A profile is laid on the page in several ways, and each question for its print looks at a file.
    std::vector<std::optional<const SpecimenPrint*>> known(profiles.size());
    const PrintSource printOf = [&](std::size_t index) {
        if (!known[index])
            known[index] = prints(index);
        return *known[index];
    };
    const FormMatch match = precise::FormMatcher(page, cells, profiles, printOf).Match();
    PreciseReading reading;
    if (!match.accepted)
        return reading;
    reading.Confidence = app::RoundToInt16(match.alignment.share * 100);
    reading.winner = match.profile;
    reading.turned = match.turned;
    const auto index = static_cast<std::size_t>(match.profile);
    const FormPlaces places{RefinedShifts(page, profiles[index], pixels, match), match.turned};
    reading.marks = ReadMarksAt(page, pixels, profiles[index], places, printOf(index), fillThreshold);
    return reading;
}

Classification AsClassification(const PreciseReading& reading, std::size_t profiles) {
    Classification classification;
    classification.matches.resize(profiles);
    classification.winner = classification.best = reading.winner;
    if (reading.winner >= 0)
        classification.matches[static_cast<std::size_t>(reading.winner)].Confidence = reading.Confidence;
    return classification;
}

std::vector<MarkReading> ReadMarksPrecisely(const imaging::Page& page, const ProfileRecord& profile,
                                            const FormPlaces& places, const SpecimenPrint* print,
                                            std::int16_t fillThreshold) {
    const BitPlane pixels = WithoutNoise(precise::PlaneOf(page.grid));
    return ReadMarksAt(page, pixels, profile, places, print, fillThreshold);
}

}  // namespace tavrene::recognition
