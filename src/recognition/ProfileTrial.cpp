#include "recognition/ProfileTrial.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <utility>

#include "recognition/Classification.h"

namespace tavrene::recognition {
namespace {

using profiles::ProfileRecord;

std::string Quoted(const std::string& name) {
    return "\"" + name + "\"";
}

std::string Percent(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f %%", value);
    return text;
}

std::string Outlines(const ProfileMatch& match) {
    return std::to_string(match.found) + " of the " + std::to_string(match.tested) +
           " box outlines that are looked for";
}

std::string TakenForAnother(const ProfileRecord& winner, int confidence) {
    return "A run takes this page for " + Quoted(winner.Name) + " (" + std::to_string(confidence) + " %). ";
}

// What the boxes hold where the profile has them, without any shift.
void ReadWhereTheyShouldBe(const imaging::Page& page, const ProfileRecord& profile, Trial& trial) {
    for (std::size_t k = 0; k < profile.Boxes.size(); ++k) {
        const BoxMeasure measure = MeasureBox(page, profile, k, {});
        trial.marks.push_back({profile.Boxes[k].Name, {}, measure.rect, measure.fill.value_or(0), false});
    }
    trial.verdict += " The boxes are shown where the profile has them.";
}

// A threshold that ticks nothing: which boxes are ticked is for the person to try.
constexpr std::int16_t kNoThreshold = 101;

std::string WhyNoMatch(const ProfileMatch& match) {
    if (match.tested == 0)
        return "it has no boxes, or one before it in the list has none, so it is not looked for.";
    return Outlines(match) + " were found, and more than half have to be.";
}

Trial TryPlainly(const imaging::Page& page, std::span<const ProfileRecord> profiles, std::size_t tried) {
    Trial trial;
    Classification classification = ClassifyImage(page, profiles);
    ProfileMatch& match = classification.matches[tried];
    const bool isWinner = classification.winner == static_cast<int>(tried);
    if (classification.winner >= 0 && !isWinner) {
        const auto winner = static_cast<std::size_t>(classification.winner);
        trial.verdict = TakenForAnother(profiles[winner], classification.matches[winner].Confidence);
    }
    if (ScoreOf(match) <= kLowConfidence) {
        trial.verdict += "This profile does not match: " + WhyNoMatch(match);
        ReadWhereTheyShouldBe(page, profiles[tried], trial);
        return trial;
    }
    trial.verdict +=
        (isWinner ? "Recognised: " : "This profile matches, too: ") + Outlines(match) + " were found";
    try {
        SpreadShifts(profiles[tried], match.shifts);
        trial.marks = ReadMarks(page, profiles[tried], match.shifts, kNoThreshold);
        trial.verdict += ".";
        trial.isRead = true;
    } catch (const ReadingError& error) {
        trial.verdict += std::string(", but it cannot be read: ") + error.what() + ".";
        ReadWhereTheyShouldBe(page, profiles[tried], trial);
    }
    return trial;
}

Trial TryPrecisely(const imaging::Page& page, std::span<const ProfileRecord> profiles, std::size_t tried,
                   PreciseReader& precise) {
    Trial trial;
    PreciseReading reading = precise.Read(page, profiles, kNoThreshold);
    const bool isOther = reading.winner >= 0 && reading.winner != static_cast<int>(tried);
    if (isOther) {
        trial.verdict =
            TakenForAnother(profiles[static_cast<std::size_t>(reading.winner)], reading.Confidence);
        reading = precise.ReadAs(page, profiles[tried], kNoThreshold);
    }
    if (reading.winner < 0) {
        trial.verdict +=
            "This profile does not match: its boxes and the print of its specimen do not lie on "
            "this page, turned or stretched as it may be.";
        ReadWhereTheyShouldBe(page, profiles[tried], trial);
        return trial;
    }
    trial.verdict += (isOther ? "This profile matches, too: " : "Recognised: ") +
                     std::to_string(reading.Confidence) + " % of the boxes lie where they should.";
    if (reading.turned)
        trial.verdict += " The page lies upside down.";
    trial.isRead = true;
    trial.turned = reading.turned;
    trial.marks = std::move(reading.marks);
    return trial;
}

}  // namespace

std::size_t PutInPlace(std::vector<ProfileRecord>& loaded, ProfileRecord own) {
    const auto place = std::ranges::find(loaded, own.FileName, &ProfileRecord::FileName);
    const auto index = static_cast<std::size_t>(place - loaded.begin());
    if (place == loaded.end())
        loaded.push_back(std::move(own));
    else
        *place = std::move(own);
    return index;
}

Trial TryProfile(const imaging::Page& page, std::vector<ProfileRecord> profiles, std::size_t tried,
                 TrialWay way, PreciseReader& precise) {
    const bool wasActive = profiles[tried].Active;
    profiles[tried].Active = true;
    Trial trial = way == TrialWay::Plain ? TryPlainly(page, profiles, tried)
                                         : TryPrecisely(page, profiles, tried, precise);
    if (!wasActive)
        trial.verdict += " Runs leave this profile out, for it is not active.";
    return trial;
}

std::string CountsOf(std::span<const MarkReading> marks, int threshold) {
    int ticked = 0;
    std::optional<double> faintest;
    std::optional<double> fullest;
    for (const MarkReading& mark : marks) {
        if (mark.fill >= threshold) {
            ++ticked;
            faintest = std::min(faintest.value_or(mark.fill), mark.fill);
        } else {
            fullest = std::max(fullest.value_or(mark.fill), mark.fill);
        }
    }
    std::string text = std::to_string(ticked) + " of " + std::to_string(marks.size()) + " boxes are ticked";
    if (faintest)
        text += "; the faintest tick has " + Percent(*faintest);
    if (fullest)
        text += (faintest ? ", the fullest empty box " : "; the fullest empty box has ") + Percent(*fullest);
    return text + ".";
}

}  // namespace tavrene::recognition
