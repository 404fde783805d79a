#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

#include "profiles/BoxCells.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// A name that a box is to get.
struct NewName {
    int number = 0;
    std::string name;
    bool operator==(const NewName&) const = default;
};

/// What names are made of. In the pattern `{row}`, `{column}`, `{block}` and `{n}` are counted from 1, `{n}`
/// over all boxes in their order; `{n:02}` has at least two digits, `{column:A}` is a letter. `{name}` is the
/// name so far. Rows and columns take the words of their lists for as long as there are some.
struct NamePattern {
    std::string text;
    std::vector<std::string> rows = {};
    std::vector<std::string> columns = {};
    int first = 1;  ///< Where `{n}` and `{row}` begin.
};

/// The names by a pattern; throws std::invalid_argument with a sentence for one that cannot be understood.
std::vector<NewName> NamesByPattern(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                    const NamePattern& pattern);

/// One line a box, in the order of the cells; empty lines and boxes behind the last line keep their names.
std::vector<NewName> NamesOfLines(std::span<const BoxCell> cells, std::span<const std::string> lines);

/// The names with every `find` in them replaced; nothing is found for an empty one.
std::vector<NewName> NamesReplaced(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                   const std::string& find, const std::string& replace);

/// The cells of a pasted column, or the words of a list: parted by line breaks, or by commas where there is
/// no line break; blanks around them and what no name can hold are dropped.
std::vector<std::string> WordsOf(const std::string& text);

/// What is wrong with new names, before anything is changed.
struct NameTroubles {
    std::vector<std::string> texts;  ///< A sentence each.
    std::set<int> numbers;           ///< The boxes that they are about.
    bool mayNotBe = false;           ///< A document cannot hold these names.
};
NameTroubles TroublesOf(const std::vector<OmrBox>& boxes, std::span<const NewName> names);

/// The name that follows: its last number counted up, with as many digits, or a number behind it; the first
/// such one that no kept box has.
std::string NextName(std::span<const OmrBox> boxes, const std::string& name);

}  // namespace tavrene::profiles
