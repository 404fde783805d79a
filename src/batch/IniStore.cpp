#include "batch/IniStore.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

#include "app/Utf8.h"

namespace tavrene::batch {
namespace {

constexpr std::string_view kBlanks = " \t\r";
constexpr std::string_view kEscapes = "abfnrtv\"\\";
constexpr std::string_view kEscaped = "\a\b\f\n\r\t\v\"\\";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Takes an escaped character, its backslash gone already, off the front of `rest`.
void TakeEscape(std::string_view& rest, std::string& text) {
    const char letter = rest.empty() ? '\\' : rest.front();
    if (const std::size_t known = kEscapes.find(letter); known != std::string_view::npos) {
        text += kEscaped[known];
    } else if (letter == 'x') {
        unsigned code = 0;
        const char* const end = std::from_chars(rest.data() + 1, rest.data() + rest.size(), code, 16).ptr;
        const bool isCharacter = code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        app::AppendCharacter(text, isCharacter ? char32_t{code} : app::kBrokenCharacter);
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
        return;
    }
    rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
}

// A text with a comma that nobody quoted was written by hand and is taken as it stands.
std::string Unescaped(std::string_view written) {
    const bool isQuoted = written.size() > 1 && written.front() == '"' && written.back() == '"';
    if (!isQuoted && written.find(',') != std::string_view::npos)
        return std::string(written);
    std::string_view rest = isQuoted ? written.substr(1, written.size() - 2) : written;
    std::string text;
    while (!rest.empty()) {
        const char character = rest.front();
        rest.remove_prefix(1);
        if (character == '\\')
            TakeEscape(rest, text);
        else
            text += character;
    }
    return text.starts_with("@@") ? text.substr(1) : text;
}

std::string Escaped(std::string_view text) {
    std::string written(text.starts_with('@') ? "@" : "");
    for (const char character : text) {
        if (const std::size_t known = kEscaped.find(character); known != std::string_view::npos)
            written.append("\\").append(1, kEscapes[known]);
        else
            written += character;
    }
    const bool needsQuotes = written.find_first_of(";,=") != std::string::npos || written.starts_with(' ') ||
                             written.ends_with(' ');
    return needsQuotes ? "\"" + written + "\"" : written;
}

std::vector<std::string> LinesOf(const app::Files& files, const std::string& path) {
    std::vector<std::string> lines;
    if (!files.FileExists(path))
        return lines;
    const app::Bytes content = files.Read(path);
    std::string_view rest(reinterpret_cast<const char*>(content.data()), content.size());
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size() - 1);
        lines.emplace_back(Trimmed(rest.substr(0, end + (rest[end] == '\n' ? 0 : 1))));
        rest.remove_prefix(end + 1);
    }
    return lines;
}

// Where a value stands among the lines, and where in its group a new one would.
struct Place {
    std::vector<std::string>::iterator line;
    bool isThere = false;
};

Place Find(std::vector<std::string>& lines, std::string_view section, std::string_view name) {
    const auto group = std::ranges::find(lines, "[" + std::string(section) + "]");
    auto line = group;
    while (line != lines.end() && ++line != lines.end() && !line->starts_with('['))
        if (const std::size_t equals = line->find('=');
            equals != std::string::npos && Trimmed(std::string_view(*line).substr(0, equals)) == name)
            return {line, true};
    while (line != group && line[-1].empty())
        --line;
    return {line, false};
}

}  // namespace

IniStore::IniStore(app::Files& files, std::string path) : files_(files), path_(std::move(path)) {}

void IniStore::Hold(const std::string& name, const std::string& text) {
    inForce_[std::string(app::kCommonSection) + "/" + name] = text;
}

std::string IniStore::ReadSettingValue(std::string_view /*application*/, std::string_view section,
                                       std::string_view name) const {
    const auto held = inForce_.find(std::string(section) + "/" + std::string(name));
    if (held != inForce_.end())
        return held->second;
    try {
        std::vector<std::string> lines = LinesOf(files_, path_);
        const Place place = Find(lines, section, name);
        if (!place.isThere)
            return {};
        return Unescaped(Trimmed(std::string_view(*place.line).substr(place.line->find('=') + 1)));
    } catch (const app::FileError&) {
        return {};
    }
}

bool IniStore::WriteSettingValue(std::string_view /*application*/, std::string_view section,
                                 std::string_view name, std::string_view text) {
    try {
        std::vector<std::string> lines = LinesOf(files_, path_);
        const std::string line = std::string(name) + "=" + Escaped(text);
        if (std::ranges::find(lines, "[" + std::string(section) + "]") == lines.end())
            lines.insert(lines.end(), {"[" + std::string(section) + "]"});
        const Place place = Find(lines, section, name);
        if (place.isThere)
            *place.line = line;
        else
            lines.insert(place.line, line);
        std::string content;
        for (const std::string& each : lines)
            content += each + "\n";
        files_.Write(path_, app::AsBytes(content));
        return true;
    } catch (const app::FileError&) {
        inForce_[std::string(section) + "/" + std::string(name)] = text;
        return false;
    }
}

std::string UsualSettingsFile() {
    const char* const config = std::getenv("XDG_CONFIG_HOME");
    const char* const home = std::getenv("HOME");
    const bool hasConfig = config != nullptr && *config == '/';
    std::string folder = hasConfig ? config : std::string(home != nullptr ? home : "") + "/.config";
    return folder + "/" + std::string(app::kApplicationName) + "/settings.ini";
}

}  // namespace tavrene::batch
