#include "ui/commands/ManualText.h"

#include <algorithm>
#include <cctype>

namespace tavrene::commands {
namespace {

constexpr std::string_view kHeading = "## ";

// As the sites that show Markdown name a heading.
std::string AnchorOf(std::string_view title) {
    std::string anchor;
    for (const char letter : title) {
        const auto byte = static_cast<unsigned char>(letter);
        if (std::isalnum(byte) != 0)
            anchor += static_cast<char>(std::tolower(byte));
        else if (letter == ' ')
            anchor += '-';
    }
    return anchor;
}

}  // namespace

std::vector<ManualPage> PagesOf(std::string_view markdown) {
    std::vector<ManualPage> pages;
    while (!markdown.empty()) {
        const std::size_t end = std::min(markdown.find('\n'), markdown.size());
        const std::string_view line = markdown.substr(0, end);
        if (line.starts_with(kHeading)) {
            const std::string_view title = line.substr(kHeading.size());
            pages.push_back({std::string(title), AnchorOf(title), {}});
        }
        if (!pages.empty())
            pages.back().text.append(line).append("\n");
        markdown.remove_prefix(std::min(end + 1, markdown.size()));
    }
    return pages;
}

std::string_view PageFor(Mode mode) {
    switch (mode) {
        case Mode::Start:
        case Mode::Desk:
            return "First steps";
        case Mode::Profile:
        case Mode::Unreadable:
            return "Making a profile";
        case Mode::Review:
        case Mode::Form:
            return "Reviewing";
        case Mode::Run:
            break;
    }
    return "Processing";
}

}  // namespace tavrene::commands
