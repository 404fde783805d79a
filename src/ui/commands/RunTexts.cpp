#include "ui/commands/RunTexts.h"

#include <cmath>
#include <utility>

#include "app/Counted.h"

namespace tavrene::commands {
namespace {

using recognition::FileEnd;
using recognition::FileReport;
using recognition::RunSummary;

constexpr const char* kAll = "all";
constexpr std::pair<FileEnd, const char*> kEnds[] = {{FileEnd::Read, "read"},
                                                     {FileEnd::NotRecognised, "not recognised"},
                                                     {FileEnd::Refused, "refused"},
                                                     {FileEnd::NotWritten, "not written"}};

std::string LinkOf(FileEnd end) {
    return std::to_string(static_cast<int>(end));
}

SummaryPart Linked(std::size_t count, const std::string& lead, const std::string& text,
                   const std::string& link) {
    return {lead, text, count == 0 ? "" : link};
}

}  // namespace

std::string ProgressText(int done, int total, double seconds) {
    // A run that starts over a cold disk is no measure for the rest of it.
    constexpr double kSettled = 2;
    constexpr double kMinute = 60;
    std::string text = std::to_string(done) + " of " + std::to_string(total);
    if (done == 0 || done >= total || seconds < kSettled)
        return text;
    const double left = seconds / done * (total - done);
    return left < kMinute ? text + ", " + std::to_string(std::lround(std::ceil(left))) + " s left"
                          : text + ", " + std::to_string(std::lround(left / kMinute)) + " min left";
}

std::vector<SummaryPart> SummaryParts(const RunSummary& summary) {
    const std::size_t files = summary.files.size();
    std::vector<SummaryPart> parts = {Linked(files, "Last run:", app::Counted(files, "file", "files"), kAll)};
    for (const auto& [end, words] : kEnds) {
        const std::size_t count = summary.Count(end);
        parts.push_back(Linked(count, "", std::to_string(count) + " " + words, LinkOf(end)));
    }
    parts.push_back({"", app::Counted(summary.seconds, "second", "seconds"), ""});
    int further = 0;
    for (const FileReport& file : summary.files)
        further += file.furtherPages;
    if (further > 0)
        parts.push_back({app::Counted(further, "further page was", "further pages were") + " not looked at:",
                         "bring in to ProcessIn", kSplitLink});
    if (summary.inClaims > 0)
        parts.push_back(
            {"", app::Counted(summary.inClaims, "scan waits", "scans wait") + " in ProcessIn/.claims", ""});
    return parts;
}

std::vector<FileReport> FilesBehind(const RunSummary& summary, const std::string& link) {
    std::vector<FileReport> files;
    for (const FileReport& file : summary.files)
        if (link == kAll || link == LinkOf(file.end))
            files.push_back(file);
    return files;
}

std::optional<std::string> WorstLink(const RunSummary& summary) {
    for (const FileEnd end : {FileEnd::NotWritten, FileEnd::Refused, FileEnd::NotRecognised})
        if (summary.Count(end) > 0)
            return LinkOf(end);
    return std::nullopt;
}

}  // namespace tavrene::commands
