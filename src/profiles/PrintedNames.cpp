#include "profiles/PrintedNames.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "profiles/BoxPlace.h"
#include "profiles/BoxSelection.h"
#include "profiles/NameCleaning.h"
#include "profiles/PrintAround.h"

namespace tavrene::profiles {
namespace {

constexpr double kLeastConfidence = 30;

std::vector<std::string_view> CellsIn(std::string_view line) {
    std::vector<std::string_view> cells;
    for (;;) {
        const auto end = line.find('\t');
        cells.push_back(line.substr(0, end));
        if (end == std::string_view::npos)
            return cells;
        line.remove_prefix(end + 1);
    }
}

std::optional<double> NumberIn(std::string_view cell) {
    double number = 0;
    const auto read = std::from_chars(cell.data(), cell.data() + cell.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

std::optional<PrintedWord> WordOf(std::string_view line) {
    constexpr std::size_t kFirstOrdinate = 6;
    constexpr std::size_t kConfidence = 10;
    const std::vector<std::string_view> cells = CellsIn(line);
    if (cells.size() <= kConfidence + 1 || NumberIn(cells[kConfidence]).value_or(-1) < kLeastConfidence)
        return std::nullopt;
    std::optional<double> ordinates[4];
    for (std::size_t k = 0; k < 4; ++k)
        ordinates[k] = NumberIn(cells[kFirstOrdinate + k]);
    PrintedWord word{CleanedName(cells[kConfidence + 1]), {}};
    const bool isWhole = std::ranges::all_of(ordinates, [](const auto& one) { return one.has_value(); });
    constexpr std::string_view kStrokes = " []|(){}_-~=.,:;'";
    if (!isWhole || word.text.find_first_not_of(kStrokes) == std::string::npos)
        return std::nullopt;
    word.place = {*ordinates[0], *ordinates[1], *ordinates[2], *ordinates[3]};
    return word;
}

}  // namespace

std::vector<PrintedWord> WordsOfTable(const std::string& table) {
    std::vector<PrintedWord> words;
    for (std::string_view rest = table; !rest.empty();) {
        const auto end = std::min(rest.find('\n'), rest.size() - 1);
        if (auto word = WordOf(rest.substr(0, rest.find_first_of("\r\n"))))
            words.push_back(*std::move(word));
        rest.remove_prefix(end + 1);
    }
    return words;
}

std::vector<NewName> NamesFromPrint(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                    std::span<const PrintedWord> words) {
    std::map<int, std::size_t> indices;
    std::vector<imaging::PageRect> places;
    for (const int number : KeptNumbers(boxes)) {
        indices[number] = places.size();
        places.push_back(PlaceOf(boxes[static_cast<std::size_t>(number) - 1]));
    }
    const PrintAround print(std::move(places), {words.begin(), words.end()});
    const std::vector<std::string> inTables = print.InTables();
    const auto namesBeside = [&](PrintAround::Side side) {
        std::vector<NewName> names;
        for (const BoxCell& cell : cells)
            if (const std::size_t box = indices[cell.number]; inTables[box].empty())
                if (std::string text = print.Beside(box, side); !text.empty())
                    names.push_back({cell.number, std::move(text)});
        return names;
    };
    const std::vector<NewName> right = namesBeside(PrintAround::Side::Right);
    const std::vector<NewName> left = namesBeside(PrintAround::Side::Left);
    std::vector<NewName> names = left.size() > right.size() ? left : right;
    for (const BoxCell& cell : cells)
        if (const std::string& text = inTables[indices[cell.number]]; !text.empty())
            names.push_back({cell.number, text});
    return names;
}

}  // namespace tavrene::profiles
