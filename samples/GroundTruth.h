#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrene::samples {

/// What a person sees on one sample scan.
struct GroundTruthRecord {
    enum class Outcome { Matched, Unclassified, Unreadable };

    std::string Image;  ///< File name under samples/scans.
    Outcome Expected = Outcome::Matched;
    std::string Profile;                    ///< Name of the profile when matched, else empty.
    std::vector<std::string> CheckedBoxes;  ///< Names of the boxes seen as checked, in the profile's order.

    /// Why the program may read this scan otherwise than a person; empty where it has to be right.
    std::string BeyondRules;
};

/// Reads the records from the text of truth.tsv: one line per scan with four columns parted by tabs (image,
/// outcome, checked boxes parted by commas, reason); the outcome is a profile's name, `unclassified` or
/// `unreadable`. Blank lines and lines that begin with `#` are passed over. Throws std::runtime_error, naming
/// the line, for any other shape.
std::vector<GroundTruthRecord> ParseGroundTruth(std::string_view text);

/// The same from a file; throws std::runtime_error when it cannot be read.
std::vector<GroundTruthRecord> ReadGroundTruth(const std::string& path);

}  // namespace tavrene::samples
