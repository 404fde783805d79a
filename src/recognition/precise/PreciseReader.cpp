#include "recognition/precise/PreciseReader.h"

#include <algorithm>

#include "app/Counted.h"
#include "recognition/precise/ShiftFit.h"

namespace tavrene::recognition {
namespace {

profiles::ProfileRecord Activated(profiles::ProfileRecord profile) {
    profile.Active = true;
    return profile;
}

// The first few of many names: the sentence stands in one line above the page.
std::string FirstOf(const std::vector<std::string>& names) {
    constexpr std::size_t few = 3;
    std::string text;
    for (std::size_t k = 0; k < std::min(few, names.size()); ++k)
        text += (k == 0 ? "" : ", ") + names[k];
    return names.size() <= few ? text : text + " and " + std::to_string(names.size() - few) + " more";
}

}  // namespace

PreciseReading PreciseReader::Read(const imaging::Page& page,
                                   std::span<const profiles::ProfileRecord> profiles,
                                   std::int16_t fillThreshold) {
    return ReadPrecisely(
        page, profiles, [&](std::size_t index) { return prints_.Of(profiles[index]); }, fillThreshold);
}

PreciseReading PreciseReader::ReadAs(const imaging::Page& page, const profiles::ProfileRecord& profile,
                                     std::int16_t fillThreshold) {
    const profiles::ProfileRecord active = Activated(profile);
    return Read(page, {&active, 1}, fillThreshold);
}

SecondOpinion PreciseReader::OpinionOn(const imaging::Page& page,
                                       std::span<const profiles::ProfileRecord> profiles, int winner,
                                       std::span<const MarkReading> marks, std::int16_t fillThreshold) {
    const PreciseReading reading = Read(page, profiles, fillThreshold);
    if (winner >= 0 && reading.winner < 0) {
        const SpecimenPrint* const print = prints_.Of(profiles[static_cast<std::size_t>(winner)]);
        if (print == nullptr || !print->belongs)
            return {};
    }
    return CompareReadings(winner, marks, reading);
}

SecondOpinion PreciseReader::OpinionOn(const imaging::Page& page, const profiles::ProfileRecord& profile,
                                       std::span<const MarkReading> marks, std::int16_t fillThreshold) {
    const profiles::ProfileRecord active = Activated(profile);
    return OpinionOn(page, {&active, 1}, 0, marks, fillThreshold);
}

const SpecimenPrint* PreciseReader::PrintOf(const profiles::ProfileRecord& profile) {
    const SpecimenPrint* const print = prints_.Of(profile);
    return print != nullptr && print->belongs ? print : nullptr;
}

std::vector<MarkReading> PreciseReader::ReadAt(const imaging::Page& page,
                                               const profiles::ProfileRecord& profile,
                                               std::span<const std::optional<BoxShift>> known,
                                               std::int16_t fillThreshold) {
    if (std::ranges::none_of(known, [](const auto& shift) { return shift.has_value(); }))
        return {};
    return ReadMarksPrecisely(page, profile, CompleteShifts(page, profile, known), prints_.Of(profile),
                              fillThreshold);
}

void OpinionTally::Add(const std::string& imageName, const SecondOpinion& opinion) {
    if (opinion.onlyPrecise)
        unread.push_back(imageName);
    if (opinion.otherProfile)
        otherProfile.push_back(imageName);
    if (!opinion.boxes.empty())
        otherwise.push_back(imageName);
    boxes += static_cast<int>(opinion.boxes.size());
}

std::string TextOf(const OpinionTally& tally) {
    std::string text;
    const auto add = [&text](const std::string& sentence) { text += (text.empty() ? "" : "\n") + sentence; };
    if (const int unread = static_cast<int>(tally.unread.size()); unread > 0)
        add(app::Counted(unread, "form looks", "forms look") +
            " turned or stretched: Precise Alignment reads " + (unread == 1 ? "it." : "them."));
    if (tally.boxes > 0)
        add(app::Counted(tally.boxes, "box", "boxes") + " in " +
            app::Counted(tally.otherwise.size(), "form", "forms") +
            " read otherwise by Precise Alignment; review shows them as doubtful.");
    if (!tally.otherProfile.empty())
        add(app::Counted(tally.otherProfile.size(), "form", "forms") +
            " may belong to another profile than the one found, or to none: " + FirstOf(tally.otherProfile) +
            ".");
    for (const std::string& profile : tally.specimens.unreadable)
        add("The specimen image of profile " + profile +
            " is missing or cannot be read: Precise Alignment knows its forms by their boxes alone.");
    for (const std::string& profile : tally.specimens.replaced)
        add("The boxes of profile " + profile + " do not lie on its specimen image: it was replaced.");
    return text;
}

}  // namespace tavrene::recognition
