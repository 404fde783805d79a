#pragma once

#include <string>
#include <vector>

#include "GroundTruth.h"
#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::samples {

enum class Verdict { Right, BeyondRules, Wrong };

/// What the program made of one scan, beside the truth.
struct Comparison {
    std::string Image;
    std::string Profile;     ///< The profile, or "unclassified" or "unreadable".
    std::string Confidence;  ///< In percent; empty without a profile.
    std::vector<std::string> CheckedBoxes;
    Verdict verdict = Verdict::Wrong;
    std::string Difference;  ///< What is not as in the truth; empty when nothing.
};

/// Compares the result documents and the process log of a finished run with the truth. A scan that is not in
/// `ProcessOut` is wrong whatever the truth.
std::vector<Comparison> CompareWithTruth(const app::Files& files, const app::WorkingFolders& folders,
                                         const std::vector<GroundTruthRecord>& truth);

/// What both ways of reading made of the same scans as a table of text with one line a scan, and below it
/// every difference in words.
std::string TableOf(const std::vector<Comparison>& plain, const std::vector<Comparison>& precise);

}  // namespace tavrene::samples
