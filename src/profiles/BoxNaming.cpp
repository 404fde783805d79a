#include "profiles/BoxNaming.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "profiles/NameCleaning.h"
#include "profiles/ProfileDocument.h"

namespace tavrene::profiles {
namespace {

constexpr const char* kBlanks = " \t\r";
constexpr const char* kDigits = "0123456789";

std::string Trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(kBlanks);
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Padded(const std::string& digits, std::size_t width) {
    return std::string(width > digits.size() ? width - digits.size() : 0, '0') + digits;
}

// A to Z, AA to AZ and so on, as the columns of a table.
std::string Letters(int count) {
    std::string letters;
    for (; count > 0; count = (count - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (count - 1) % 26));
    return letters;
}

std::string Counted(int count, const std::string& format) {
    if (format == "A")
        return Letters(count);
    const bool isWidth = format.size() <= 2 && format.find_first_not_of(kDigits) == std::string::npos;
    if (!isWidth)
        throw std::invalid_argument(
            "Behind the colon stands how many digits a number has, as in {n:02}, or A.");
    return Padded(std::to_string(count), format.empty() ? 0 : static_cast<std::size_t>(std::stoi(format)));
}

std::string Worded(int count, const std::vector<std::string>& words, int first, const std::string& format) {
    const auto index = static_cast<std::size_t>(count) - 1;
    return index < words.size() ? words[index] : Counted(count + first - 1, format);
}

// One thing between braces, for the box that is the `n`th.
std::string Filled(const std::string& field, const BoxCell& cell, int n, const NamePattern& pattern,
                   const std::string& name) {
    const auto colon = field.find(':');
    const std::string word = field.substr(0, colon);
    const std::string format = colon == std::string::npos ? "" : field.substr(colon + 1);
    if (word == "n")
        return Counted(n + pattern.first - 1, format);
    if (word == "row")
        return Worded(cell.row, pattern.rows, pattern.first, format);
    if (word == "column")
        return Worded(cell.column, pattern.columns, 1, format);
    if (word == "block")
        return Counted(cell.block, format);
    if (word == "name")
        return name;
    throw std::invalid_argument("There is no {" + field + "}: use {row}, {column}, {n}, {block} or {name}.");
}

std::string NameBy(const NamePattern& pattern, const BoxCell& cell, int n, const std::string& before) {
    std::string name;
    const std::string& text = pattern.text;
    for (std::size_t at = 0; at < text.size();) {
        const auto open = text.find('{', at);
        name += text.substr(at, open - at);
        if (open == std::string::npos)
            break;
        const auto close = text.find('}', open);
        if (close == std::string::npos)
            throw std::invalid_argument("A brace { is not closed.");
        name += Filled(text.substr(open + 1, close - open - 1), cell, n, pattern, before);
        at = close + 1;
    }
    return Trimmed(WithoutControls(name));
}

const std::string& NameOf(const std::vector<OmrBox>& boxes, int number) {
    return boxes[static_cast<std::size_t>(number) - 1].Name;
}

}  // namespace

std::vector<NewName> NamesByPattern(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                    const NamePattern& pattern) {
    std::vector<NewName> names;
    for (const BoxCell& cell : cells)
        names.push_back({cell.number, NameBy(pattern, cell, static_cast<int>(names.size()) + 1,
                                             NameOf(boxes, cell.number))});
    return names;
}

std::vector<NewName> NamesOfLines(std::span<const BoxCell> cells, std::span<const std::string> lines) {
    std::vector<NewName> names;
    for (std::size_t index = 0; index < std::min(cells.size(), lines.size()); ++index)
        if (!lines[index].empty())
            names.push_back({cells[index].number, lines[index]});
    return names;
}

std::vector<NewName> NamesReplaced(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                   const std::string& find, const std::string& replace) {
    std::vector<NewName> names;
    for (const BoxCell& cell : cells) {
        std::string name = NameOf(boxes, cell.number);
        auto at = find.empty() ? std::string::npos : name.find(find);
        if (at == std::string::npos)
            continue;
        for (; at != std::string::npos; at = name.find(find, at + replace.size()))
            name.replace(at, find.size(), replace);
        names.push_back({cell.number, WithoutControls(name)});
    }
    return names;
}

std::vector<std::string> WordsOf(const std::string& text) {
    const char parting = text.find('\n') == std::string::npos ? ',' : '\n';
    std::vector<std::string> words;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = std::min(text.find(parting, at), text.size());
        words.push_back(Trimmed(CleanedName(text.substr(at, end - at))));
        at = end + 1;
    }
    return words;
}

NameTroubles TroublesOf(const std::vector<OmrBox>& boxes, std::span<const NewName> names) {
    std::vector<OmrBox> after = boxes;
    for (const NewName& name : names)
        after[static_cast<std::size_t>(name.number) - 1].Name = name.name;
    std::map<std::string, std::vector<int>> uses;
    for (std::size_t index = 0; index < after.size(); ++index)
        if (after[index].Checked)
            uses[after[index].Name].push_back(static_cast<int>(index) + 1);
    NameTroubles troubles;
    const auto add = [&troubles](const std::string& text, const std::vector<int>& numbers) {
        troubles.texts.push_back(text);
        troubles.numbers.insert(numbers.begin(), numbers.end());
    };
    std::set<std::string> told;
    for (const NewName& name : names) {
        const std::vector<int>& numbers = uses[name.name];
        if (!told.insert(name.name).second)
            continue;
        const OmrBox& box = after[static_cast<std::size_t>(name.number) - 1];
        if (FindUnwritableName({&box, 1})) {
            add("The name \"" + name.name + "\" holds a double quote, < or &, which no profile can.",
                numbers);
            troubles.mayNotBe = true;
        } else if (name.name.empty()) {
            add(std::to_string(numbers.size()) + " boxes would have no name.", numbers);
        } else if (numbers.size() > 1) {
            add(std::to_string(numbers.size()) + " boxes would have the name \"" + name.name + "\".",
                numbers);
        }
    }
    return troubles;
}

std::string NextName(std::span<const OmrBox> boxes, const std::string& name) {
    const auto last = name.find_last_of(kDigits);
    const auto before = last == std::string::npos ? last : name.find_last_not_of(kDigits, last);
    const std::size_t first = last == std::string::npos     ? name.size()
                              : before == std::string::npos ? 0
                                                            : before + 1;
    const std::string digits = last == std::string::npos ? "" : name.substr(first, last - first + 1);
    const std::string head = digits.empty() ? name + " " : name.substr(0, first);
    const std::string tail = digits.empty() ? "" : name.substr(last + 1);
    // More digits than a number has are no count.
    long long count = digits.empty() || digits.size() > 15 ? 1 : std::stoll(digits);
    for (;;) {
        std::string next = head;
        next += Padded(std::to_string(++count), digits.size());
        next += tail;
        if (std::none_of(boxes.begin(), boxes.end(),
                         [&](const OmrBox& box) { return box.Checked && box.Name == next; }))
            return next;
    }
}

}  // namespace tavrene::profiles
