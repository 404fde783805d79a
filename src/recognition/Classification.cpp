#include "recognition/Classification.h"

#include <algorithm>

#include "app/Numeric.h"
#include "recognition/FormScale.h"
#include "recognition/Outline.h"
#include "recognition/SampleBoxes.h"

namespace tavrene::recognition {
namespace {

// The share of a printed outline that must be ink for the box to count as found. A print that has lost a
// tenth of it is still known. The price: on an outline of several pixels the search, which ends at the first
// shift that reaches the share, may end a pixel or two short of the middle of the line.
constexpr float kFoundRatio = 0.9F;

using profiles::PrintedBox;
using profiles::ProfileRecord;

GridRect NominalRect(const imaging::WorkGrid& grid, const PrintedBox& box, const FormScale& scale) {
    const auto row = [&grid, &scale](std::int16_t ordinate) {
        const double height = grid.Rows();
        return std::max(0, app::RoundToInt(imaging::FlipVertically(height, scale.Y(ordinate))));
    };
    return {row(box.lower), app::RoundToInt(scale.X(box.L)), row(box.upper), app::RoundToInt(scale.X(box.R))};
}

// Searches one box; `match` receives the last ratio, and the shift at which the outline was found.
void SearchBox(const imaging::WorkGrid& grid, const PrintedBox& box, const FormScale& scale,
               std::size_t index, OutlineNeighbourhood& neighbourhood, ProfileMatch& match) {
    ++match.tested;
    if (box.expectedOutline <= 0)
        return;
    const GridRect nominal = NominalRect(grid, box, scale);
    neighbourhood.CopyOutline(grid, nominal);
    const auto expected = static_cast<float>(box.expectedOutline);
    for (const BoxShift& shift : ShiftSpiral()) {
        const int count = neighbourhood.CountOutline(Shifted(nominal, shift.dx, shift.dy));
        match.ratios[index] = static_cast<float>(count) / expected;
        if (match.ratios[index] >= kFoundRatio) {
            ++match.found;
            match.shifts[index] = shift;
            return;
        }
    }
}

std::vector<ProfileMatch> MatchProfiles(const imaging::Page& page, std::span<const ProfileRecord> profiles) {
    std::vector<ProfileMatch> matches(profiles.size());
    OutlineNeighbourhood neighbourhood;
    for (std::size_t k = 0; k < profiles.size(); ++k) {
        const ProfileRecord& profile = profiles[k];
        matches[k].shifts.resize(profile.Boxes.size());
        matches[k].ratios.resize(profile.Boxes.size());
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

int ScoreOf(const ProfileMatch& match) {
    return match.tested == 0 ? 0 : app::RoundToInt(static_cast<double>(match.found) / match.tested * 100.0);
}

Classification ClassifyImage(const imaging::Page& page, std::span<const ProfileRecord> profiles) {
    Classification result;
    result.matches = MatchProfiles(page, profiles);
    if (std::all_of(result.matches.begin(), result.matches.end(),
                    [](const ProfileMatch& match) { return match.found == 0; }))
        return result;
    const Best best = BestProfile(profiles, result.matches);
    result.best = static_cast<int>(best.index);
    result.matches[best.index].Confidence = static_cast<std::int16_t>(best.score);
    if (best.score > kLowConfidence)
        result.winner = result.best;
    return result;
}

std::string ClassificationText(const Classification& classification,
                               std::span<const ProfileRecord> profiles) {
    const bool isClassified = classification.winner >= 0;
    std::string text = isClassified ? "classified" : "unclassified";
    if (classification.best < 0)
        return text;
    const auto best = static_cast<std::size_t>(classification.best);
    text.append(" as [").append(profiles[best].Name).append(isClassified ? "] with " : "] with LOW ");
    // The score is whole; its readers expect two decimals and the blank at the end.
    return text.append("confidence [")
        .append(std::to_string(classification.matches[best].Confidence))
        .append(".00] ");
}

std::string ClassificationLine(const std::string& imageName, const std::string& text) {
    return "Image [" + imageName + "] " + text;
}

}  // namespace tavrene::recognition
