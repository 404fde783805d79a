#pragma once

#include <span>
#include <string>
#include <vector>

#include "imaging/PageRect.h"
#include "profiles/BoxNaming.h"

namespace tavrene::profiles {

/// A word that is printed on a specimen; page frame, image pixels.
struct PrintedWord {
    std::string text;
    imaging::PageRect place;
};

/// The words in a table as readers of print write it: tabs between the cells, a line a word, its left, top,
/// width and height from the seventh cell on, its confidence in percent in the eleventh, its text in the
/// twelfth. Words that are hardly more than a guess are left out.
std::vector<PrintedWord> WordsOfTable(const std::string& table);

/// The print around each box, as its name: in a table the words of its row and of its column, elsewhere the
/// words at the side at which most boxes of the form have some. Boxes without such words get none.
std::vector<NewName> NamesFromPrint(const std::vector<OmrBox>& boxes, std::span<const BoxCell> cells,
                                    std::span<const PrintedWord> words);

}  // namespace tavrene::profiles
