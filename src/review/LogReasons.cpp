#include "review/LogReasons.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Utf8.h"
#include "recognition/RunSummary.h"

namespace tavrene::review {
namespace {

// One log is written a day.
constexpr std::size_t kLogsRead = 31;

// "02:05:09 PM " before the message.
constexpr std::size_t kTimeLength = 12;

// By how an image is written in the logs, which is the same for names that differ in letters that these lack.
using Wanted = std::map<std::string, std::vector<std::string>, std::less<>>;

struct LineAbout {
    Wanted::const_iterator images;
    std::string_view what;  // is said of them
};

// A name can hold what ends it in the line, so every end is tried.
std::optional<LineAbout> Understand(std::string_view line, const Wanted& wanted) {
    constexpr std::string_view kBracket = "Image [";
    const bool isBracketed = line.starts_with(kBracket);
    const std::string_view rest = isBracketed ? line.substr(kBracket.size()) : line;
    const std::string_view end = isBracketed ? "] " : ": ";
    for (std::size_t at = rest.find(end); at != std::string_view::npos; at = rest.find(end, at + 1))
        if (const auto images = wanted.find(rest.substr(0, at)); images != wanted.end())
            return LineAbout{images, rest.substr(at + end.size())};
    return std::nullopt;
}

// The last of a log counts.
std::map<std::string, std::string> ReasonsIn(std::string_view log, const Wanted& wanted) {
    std::map<std::string, std::string> reasons;
    while (!log.empty()) {
        const std::size_t end = std::min(log.find("\r\n"), log.size());
        const std::string_view line =
            log.substr(std::min(kTimeLength, end), end - std::min(kTimeLength, end));
        log.remove_prefix(std::min(end + 2, log.size()));
        const std::optional<LineAbout> about = Understand(line, wanted);
        if (!about || about->what.empty() || recognition::GivesNoReason(about->what))
            continue;
        for (const std::string& image : about->images->second)
            reasons[image] = app::FromWindows1252(recognition::WithoutBlankAtEnd(about->what));
    }
    return reasons;
}

std::string ReadOrNothing(const app::Files& files, const std::string& path) {
    try {
        const app::Bytes bytes = files.Read(path);
        std::string text(bytes.size(), ' ');
        std::ranges::transform(bytes, text.begin(), [](std::byte byte) { return static_cast<char>(byte); });
        return text;
    } catch (const app::FileError&) {
        return {};
    }
}

std::vector<std::string> LogsFromTheNewest(const app::Files& files, const std::string& folder) {
    try {
        // The names end in the day.
        std::vector<std::string> logs = files.List(folder, "TavreneBoxes-Process-*.Log");
        std::ranges::reverse(logs);
        logs.resize(std::min(logs.size(), kLogsRead));
        return logs;
    } catch (const app::FileError&) {
        return {};
    }
}

}  // namespace

std::map<std::string, std::string> ReasonsInLogs(const app::Files& files, const std::string& folder,
                                                 const std::set<std::string>& imageNames) {
    Wanted wanted;
    for (const std::string& name : imageNames)
        wanted[app::ToWindows1252(name)].push_back(name);
    std::map<std::string, std::string> reasons;
    for (const std::string& log : LogsFromTheNewest(files, folder)) {
        for (auto& [name, reason] : ReasonsIn(ReadOrNothing(files, folder + log), wanted)) {
            wanted.erase(app::ToWindows1252(name));
            reasons[name] = reason;
        }
        if (wanted.empty())
            break;
    }
    return reasons;
}

}  // namespace tavrene::review
