#include "recognition/precise/ShiftFit.h"

#include <cmath>

#include "app/Numeric.h"
#include "recognition/precise/FormMatch.h"

namespace tavrene::recognition {
namespace {

using precise::CellPoint;
using precise::PageMap;
using precise::Sighting;

// How farther than usual a form may lie before its being upside down is the better explanation: pixels.
constexpr double kShiftReach = 100;

struct Fit {
    PageMap map;
    bool turned = false;
    double cost = 0;
};

Fit FitOneWay(const imaging::Page& page, const profiles::ProfileRecord& profile, const FormScale& scale,
              std::span<const std::optional<BoxShift>> known, bool turned) {
    std::vector<Sighting> sightings;
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        if (!known[k])
            continue;
        const CellPoint upright = precise::NominalPlace(page, scale, profile.Boxes[k], false);
        sightings.push_back({precise::NominalPlace(page, scale, profile.Boxes[k], turned),
                             {upright.x + known[k]->dx, upright.y + known[k]->dy},
                             1});
    }
    Fit fit{FitMap({page.grid.Width() / 2.0, page.grid.Rows() / 2.0}, sightings, kShiftReach), turned, 0};
    for (const Sighting& sighting : sightings) {
        const CellPoint mapped = fit.map(sighting.place);
        fit.cost += std::hypot(mapped.x - sighting.seen.x, mapped.y - sighting.seen.y);
    }
    // With one or two boxes both ways fit: then the one that asks clearly less of the page.
    fit.cost += std::hypot(fit.map.shiftX, fit.map.shiftY) / kShiftReach + 100 * std::abs(fit.map.Turn());
    // With many boxes the fit may as well pull the page through itself, which looks like half a turn.
    fit.cost += 100 * std::hypot(fit.map.xByX, fit.map.yByY);
    return fit;
}

Fit FitBetterWay(const imaging::Page& page, const profiles::ProfileRecord& profile, const FormScale& scale,
                 std::span<const std::optional<BoxShift>> known) {
    constexpr double upsideDownIsRare = 1;
    const Fit upright = FitOneWay(page, profile, scale, known, false);
    const Fit turned = FitOneWay(page, profile, scale, known, true);
    return turned.cost + upsideDownIsRare < upright.cost ? turned : upright;
}

}  // namespace

bool LiesUpsideDown(const imaging::Page& page, const profiles::ProfileRecord& profile,
                    std::span<const std::optional<BoxShift>> known) {
    return FitBetterWay(page, profile, ScaleBetween(page, profile), known).turned;
}

FormPlaces CompleteShifts(const imaging::Page& page, const profiles::ProfileRecord& profile,
                          std::span<const std::optional<BoxShift>> known) {
    const FormScale scale = ScaleBetween(page, profile);
    const Fit fit = FitBetterWay(page, profile, scale, known);
    FormPlaces places;
    places.turned = fit.turned;
    places.shifts.reserve(profile.Boxes.size());
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const CellPoint nominal = precise::NominalPlace(page, scale, profile.Boxes[k], false);
        const CellPoint mapped = fit.map(precise::NominalPlace(page, scale, profile.Boxes[k], fit.turned));
        places.shifts.push_back(known[k].value_or(
            BoxShift{app::RoundToInt16(mapped.x - nominal.x), app::RoundToInt16(mapped.y - nominal.y)}));
    }
    return places;
}

}  // namespace tavrene::recognition
