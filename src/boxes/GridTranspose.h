#pragma once

#include "imaging/WorkGrid.h"

namespace tavrene::boxes {

/// The grid with columns and rows exchanged, padded columns included: cell (row, column) of the result is
/// cell (column, row) of `grid`. Runs down a column become runs of words.
imaging::WorkGrid Transposed(const imaging::WorkGrid& grid);

}  // namespace tavrene::boxes
