#pragma once

#include <optional>
#include <string>
#include <vector>

#include "recognition/RunSummary.h"

namespace tavrene::commands {

/// How far a run is: "138 of 675, 4 min left", by the seconds that the files so far have taken. The time is
/// left out while too little is known of it.
std::string ProgressText(int done, int total, double seconds);

/// What the link stands for that offers to bring in the pages that were not looked at.
inline constexpr const char* kSplitLink = "split";

/// A piece of the line that tells of a run that has ended.
struct SummaryPart {
    std::string lead;  ///< Before the text; mostly empty.
    std::string text;
    std::string link;  ///< Empty where there is nothing to show behind it.
    bool operator==(const SummaryPart&) const = default;
};

/// That line. A number of files links to them by the number of their `FileEnd`, or "all". Of pages that were
/// not looked at it tells only where there are such, with the link `kSplitLink`.
std::vector<SummaryPart> SummaryParts(const recognition::RunSummary& summary);

/// The files of a link of that line, in the run's order.
std::vector<recognition::FileReport> FilesBehind(const recognition::RunSummary& summary,
                                                 const std::string& link);

/// The link whose files the person should see first; none where all were read.
std::optional<std::string> WorstLink(const recognition::RunSummary& summary);

}  // namespace tavrene::commands
