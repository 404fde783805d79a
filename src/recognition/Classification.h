#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/ShiftSpiral.h"

namespace tavrene::recognition {

/// How one profile fared with one image.
struct ProfileMatch {
    std::vector<BoxShift> shifts;  ///< One a box; 0,0 until a sampled box is found, later spread over all.
    std::vector<float> ratios;     ///< The share of the outline last measured, one a box.
    std::int16_t found = 0;        ///< Sampled boxes whose outline was found.
    std::int16_t tested = 0;       ///< Sampled boxes examined.
    std::int16_t Confidence = 0;   ///< Percent of the sampled boxes found; only for the best profile.
};

/// The outcome for one image: `winner` is the index of the chosen profile, or -1 for "unclassified". `best`
/// is the profile that came nearest, also where that was too little; -1 when no outline was found at all.
struct Classification {
    int winner = -1;
    int best = -1;
    std::vector<ProfileMatch> matches;  ///< One a profile, in load order.
};

/// A form belongs to a profile when more than half of its sampled outlines were found.
inline constexpr int kLowConfidence = 50;

/// Percent of the sampled boxes whose outline was found, as that is decided by; 0 where none was looked for.
int ScoreOf(const ProfileMatch& match);

/// Decides which of the profiles the page is a form of, by looking for the printed outlines of a sample of
/// each active profile's boxes within `kMaxShift` pixels of their place. A profile without boxes ends the
/// scan for itself and all later ones.
Classification ClassifyImage(const imaging::Page& page, std::span<const profiles::ProfileRecord> profiles);

/// What the process log says of it,
std::string ClassificationText(const Classification& classification,
                               std::span<const profiles::ProfileRecord> profiles);

/// and its line about an image.
std::string ClassificationLine(const std::string& imageName, const std::string& text);

}  // namespace tavrene::recognition
