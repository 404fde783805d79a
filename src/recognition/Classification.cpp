#include "recognition/Classification.h"

#include <algorithm>

#include "app/Numeric.h"
#include "recognition/FormScale.h"
#include "recognition/Outline.h"
#include "recognition/SampleBoxes.h"

namespace tavrene::recognition {
namespace {

// The share of a printed outline that must be ink for the box to count as found.
constexpr float kFoundRatio = 0.9F;

using profiles::OmrBox;
using profiles::ProfileRecord;

GridRect NominalRect(const imaging::WorkGrid& grid, const OmrBox& box, const FormScale& scale) {
    const auto row = [&grid, &scale](std::int16_t ordinate) {
        const double height = grid.Rows();
        return std::max(0, app::RoundToInt(imaging::FlipVertically(height, scale.Y(ordinate))));
    };
    return {row(box.T), app::RoundToInt(scale.X(box.L)), row(box.B), app::RoundToInt(scale.X(box.R))};
}

// Searches one box; `match` receives the last ratio, and the shift at which the outline was found.
void SearchBox(const imaging::WorkGrid& grid, const OmrBox& box, const FormScale& scale, std::size_t index,
               OutlineNeighbourhood& neighbourhood, ProfileMatch& match) {
    ++match.Tested;
    if (box.ExpectedOutline <= 0)
        return;
    const GridRect nominal = NominalRect(grid, box, scale);
    neighbourhood.CopyOutline(grid, nominal);
    const auto expected = static_cast<float>(box.ExpectedOutline);
    for (const BoxShift& shift : ShiftSpiral()) {
        const int count = neighbourhood.CountOutline(Shifted(nominal, shift.dx, shift.dy));
        match.Ratios[index] = static_cast<float>(count) / expected;
        if (match.Ratios[index] >= kFoundRatio) {
            ++match.Found;
            match.Shifts[index] = shift;
            return;
        }
    }
}

std::vector<ProfileMatch> MatchProfiles(const imaging::Page& page, std::span<const ProfileRecord> profiles) {
    std::vector<ProfileMatch> matches(profiles.size());
    OutlineNeighbourhood neighbourhood;
    for (std::size_t k = 0; k < profiles.size(); ++k) {
        const ProfileRecord& profile = profiles[k];
        matches[k].Shifts.resize(profile.Boxes.size());
        matches[k].Ratios.resize(profile.Boxes.size());
        if (profile.Boxes.empty())
            break;
        if (!profile.Active)
            continue;
        const FormScale scale = ScaleBetween(page, profile);
        for (const std::size_t index : SampleBoxes(profile.Boxes.size()))
            SearchBox(page.grid, profile.Boxes[index], scale, index, neighbourhood, matches[k]);
    }
    return matches;
}

int ScoreOf(const ProfileMatch& match) {
    return match.Tested == 0 ? 0 : app::RoundToInt(static_cast<double>(match.Found) / match.Tested * 100.0);
}

struct Best {
    std::size_t index = 0;
    int score = 0;
};

Best BestProfile(std::span<const ProfileRecord> profiles, std::span<const ProfileMatch> matches) {
    Best best;
    for (std::size_t k = 0; k < profiles.size(); ++k) {
        const int score = profiles[k].Active && !profiles[k].Boxes.empty() ? ScoreOf(matches[k]) : 0;
        if (score > best.score)
            best = {k, score};
    }
    return best;
}

}  // namespace

Classification Classify(const imaging::Page& page, std::span<const ProfileRecord> profiles) {
    Classification result;
    result.matches = MatchProfiles(page, profiles);
    const Best best = BestProfile(profiles, result.matches);
    if (best.score > kLowConfidence)
        result.winner = static_cast<int>(best.index);
    return result;
}

Classification ClassifyImage(const std::string& imageName, const imaging::Page& page,
                             std::span<const ProfileRecord> profiles, app::ActivityLog& log) {
    Classification result;
    result.matches = MatchProfiles(page, profiles);
    const std::string image = "Image [" + imageName + "] ";
    if (std::all_of(result.matches.begin(), result.matches.end(),
                    [](const ProfileMatch& match) { return match.Found == 0; })) {
        log.LogProcessEvent(image + "unclassified");
        return result;
    }
    const Best best = BestProfile(profiles, result.matches);
    result.matches[best.index].Confidence = static_cast<std::int16_t>(best.score);
    const std::string name = "as [" + profiles[best.index].Name + "] with ";
    const std::string figure = "confidence [" + std::to_string(best.score) + ".00] ";
    if (best.score > kLowConfidence) {
        result.winner = static_cast<int>(best.index);
        log.LogProcessEvent(image + "classified " + name + figure);
    } else {
        log.LogProcessEvent(image + "unclassified " + name + "LOW " + figure);
    }
    return result;
}

}  // namespace tavrene::recognition
