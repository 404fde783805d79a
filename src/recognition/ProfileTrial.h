#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::recognition {

/// The plain reading, or precise alignment.
enum class TrialWay { Plain, Precise };

/// What reading makes of a page with one profile. Nothing is written or told of it.
struct Trial {
    std::string verdict;  ///< In sentences: whether a run takes the page for this profile, and why not.
    bool isRead = false;  ///< The boxes were found on the page; else they lie where the profile has them.
    bool turned = false;  ///< The page lies upside down.
    std::vector<MarkReading> marks;  ///< In the profile's order; `Checked` is left to the threshold.
};

/// Puts a profile as it stands into the place of the loaded one of its file, or behind all where there is
/// none. Gives its index.
std::size_t PutInPlace(std::vector<profiles::ProfileRecord>& loaded, profiles::ProfileRecord own);

/// Tries profile `tried` of those that a run would look at, as if it were active.
Trial TryProfile(const imaging::Page& page, std::vector<profiles::ProfileRecord> profiles, std::size_t tried,
                 TrialWay way, PreciseReader& precise);

/// How many boxes count as ticked at a threshold in percent, and how near to it the others come: "12 of 60
/// boxes are ticked; the faintest tick has 14.2 %, the fullest empty box 3.1 %."
std::string CountsOf(std::span<const MarkReading> marks, int threshold);

}  // namespace tavrene::recognition
