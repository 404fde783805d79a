#include "profiles/PrintedNames.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "profiles/BoxPlace.h"
#include "profiles/NameCleaning.h"

namespace tavrene::profiles {
namespace {

using imaging::PageRect;

constexpr double kLeastConfidence = 30;

// A box's words begin within so many widths of it, and go on while no gap is wider than so many heights of
// the box, which is about as high as a line.
constexpr double kReach = 3;
constexpr double kWordGap = 1.2;

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

// The page as seen from a box, towards one side: how far away things begin and end.
struct Beside {
    double from = 0;
    double to = 0;
};

Beside AtSide(const PageRect& box, const PageRect& other, bool isRight) {
    if (isRight)
        return {other.left - box.left - box.width, other.left + other.width - box.left - box.width};
    return {box.left - other.left - other.width, box.left - other.left};
}

bool IsOnLine(const PageRect& box, const PageRect& other) {
    const double middle = other.top + other.height / 2;
    return middle > box.top - box.height / 4 && middle < box.top + box.height * 5 / 4;
}

bool HasMiddleOf(const PageRect& box, const PageRect& other) {
    const double x = other.left + other.width / 2;
    const double y = other.top + other.height / 2;
    return x > box.left && x < box.left + box.width && y > box.top && y < box.top + box.height;
}

struct Found {
    const PrintedWord* word;
    Beside at;
};

std::string WordsAt(const PageRect& box, const std::vector<PageRect>& boxes,
                    std::span<const PrintedWord> words, bool isRight) {
    double end = kReach * box.width * 100;
    for (const PageRect& other : boxes)
        if (const Beside at = AtSide(box, other, isRight); IsOnLine(box, other) && at.from > 0)
            end = std::min(end, at.from);
    std::vector<Found> found;
    for (const PrintedWord& word : words)
        if (const Beside at = AtSide(box, word.place, isRight);
            IsOnLine(box, word.place) && at.from > -box.width / 4 && at.to < end + box.width / 4)
            found.push_back({&word, at});
    std::ranges::sort(found, {}, [](const Found& one) { return one.at.from; });
    std::vector<const PrintedWord*> taken;
    double last = (kReach * box.width) - (kWordGap * box.height);
    for (const Found& one : found) {
        if (one.at.from > last + kWordGap * box.height)
            break;
        taken.push_back(one.word);
        last = one.at.to;
    }
    if (!isRight)
        std::ranges::reverse(taken);
    std::string text;
    for (const PrintedWord* const word : taken)
        text += (text.empty() ? "" : " ") + word->text;
    return text;
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
                                    std::span<const PrintedWord> read) {
    std::vector<PageRect> places;
    for (const OmrBox& box : boxes)
        if (box.Checked)
            places.push_back(PlaceOf(box));
    // The outline of a box may have been taken for a letter.
    std::vector<PrintedWord> words(read.begin(), read.end());
    std::erase_if(words, [&](const PrintedWord& word) {
        return std::ranges::any_of(places, [&](const PageRect& box) { return HasMiddleOf(box, word.place); });
    });
    const auto namesAt = [&](bool isRight) {
        std::vector<NewName> names;
        for (const BoxCell& cell : cells) {
            const PageRect box = PlaceOf(boxes[static_cast<std::size_t>(cell.number) - 1]);
            if (std::string text = WordsAt(box, places, words, isRight); !text.empty())
                names.push_back({cell.number, std::move(text)});
        }
        return names;
    };
    std::vector<NewName> right = namesAt(true);
    std::vector<NewName> left = namesAt(false);
    return left.size() > right.size() ? left : right;
}

}  // namespace tavrene::profiles
