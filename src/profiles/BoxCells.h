#pragma once

#include <span>
#include <vector>

#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// Where a box stands among others, all counted from 1. Blocks of columns with a wide gap between them stand
/// side by side: rows count on from one block to the next, columns begin anew.
struct BoxCell {
    int number = 0;
    int block = 1;
    int row = 1;
    int column = 1;
    bool operator==(const BoxCell&) const = default;
};

enum class CellOrder { Across, Down };

/// The rows and columns in which these boxes stand, block by block and within a block row by row or column by
/// column. A row may be a little uneven or aslant.
std::vector<BoxCell> CellsOf(const std::vector<OmrBox>& boxes, std::span<const int> numbers, CellOrder order);

/// The kept boxes row by row from the top of the page down, whatever blocks there are. Deleted boxes keep
/// their places. Gives the new number of each box.
std::vector<int> SortByPlace(std::vector<OmrBox>& boxes);

/// The boxes of these numbers in this order, in the places that they have in the list together. Gives the new
/// number of each box.
std::vector<int> PutInOrder(std::vector<OmrBox>& boxes, const std::vector<int>& order);

/// Moves the boxes of these numbers by one place to the front (-1) or to the end (1) of the list, past the
/// one that stands there; at the end of the list they stay. Gives the new number of each box.
std::vector<int> MoveInList(std::vector<OmrBox>& boxes, std::span<const int> numbers, int by);

}  // namespace tavrene::profiles
