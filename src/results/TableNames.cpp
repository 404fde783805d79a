#include "results/TableNames.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "app/Utf8.h"

namespace tavrene::results {
namespace {

constexpr std::string_view kSummary = "Summary";
constexpr std::string_view kNameless = "No profile";

// Spreadsheets count a sheet's name in UTF-16, file systems a file's in bytes (255, of which the extension
// and what tells equal names apart take some).
struct Room {
    std::size_t units;
    std::size_t (*unitsOf)(char32_t character, std::size_t bytes);
};

constexpr Room kFileRoom = {230, [](char32_t, std::size_t bytes) { return bytes; }};
constexpr Room kSheetRoom = {
    31, [](char32_t character, std::size_t) -> std::size_t { return character > 0xFFFF ? 2 : 1; }};

std::string Shortened(std::string_view text, const Room& room, std::size_t spared) {
    std::size_t used = spared;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::string_view before = rest;
        const char32_t character = app::TakeCharacter(rest);
        used += room.unitsOf(character, before.size() - rest.size());
        if (used > room.units)
            return std::string(text.substr(0, text.size() - before.size()));
    }
    return std::string(text);
}

// File systems and sheets refuse much the same characters; an apostrophe or a point at an end is refused by
// one of them as well.
std::string Plain(std::string_view name) {
    constexpr std::string_view kRefused = "/\\:*?\"<>|[]";
    std::string plain(name);
    std::replace_if(
        plain.begin(), plain.end(),
        [=](char c) {
            return (static_cast<unsigned char>(c) < 0x20) || kRefused.find(c) != std::string_view::npos;
        },
        '_');
    for (const std::size_t end : {std::size_t{0}, plain.size() - 1}) {
        if (!plain.empty() && std::string_view("'. ").find(plain[end]) != std::string_view::npos)
            plain[end] = '_';
    }
    return plain.empty() ? std::string(kNameless) : plain;
}

class NameSet {
  public:
    explicit NameSet(const Room& room) : room_(room) {}

    void Reserve(std::string_view name) { taken_.insert(app::LowerCase(name)); }

    std::string Unique(std::string_view profile) {
        const std::string plain = Plain(profile);
        std::string name = Shortened(plain, room_, 0);
        for (int k = 2; !taken_.insert(app::LowerCase(name)).second; ++k) {
            const std::string suffix = " (" + std::to_string(k) + ")";
            name = Shortened(plain, room_, suffix.size()) + suffix;
        }
        return name;
    }

  private:
    const Room& room_;
    std::set<std::string> taken_;
};

std::vector<std::string> NamesOf(std::span<const ResultTable> tables, const Room& room) {
    NameSet set(room);
    set.Reserve(kSummary);
    std::vector<std::string> names;
    for (const ResultTable& table : tables)
        names.push_back(set.Unique(table.Profile));
    names.emplace_back(kSummary);
    return names;
}

}  // namespace

std::vector<std::string> FileNamesOf(std::span<const ResultTable> tables) {
    return NamesOf(tables, kFileRoom);
}

std::vector<std::string> SheetNamesOf(std::span<const ResultTable> tables) {
    return NamesOf(tables, kSheetRoom);
}

}  // namespace tavrene::results
