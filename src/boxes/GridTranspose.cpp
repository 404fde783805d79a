#include "boxes/GridTranspose.h"

#include <algorithm>
#include <array>

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;
using Word = WorkGrid::Word;
constexpr int kSide = WorkGrid::kWordBits;
using Block = std::array<Word, kSide>;

// Exchanges the off-diagonal quarters of ever smaller squares.
void TransposeBlock(Block& block) {
    Word mask = ~Word{0} >> (kSide / 2);
    for (std::size_t half = kSide / 2; half != 0; half /= 2, mask ^= mask << half) {
        for (std::size_t row = 0; row < kSide; row = (row + half + 1) & ~half) {
            const Word swapped = ((block[row] >> half) ^ block[row + half]) & mask;
            block[row] ^= swapped << half;
            block[row + half] ^= swapped;
        }
    }
}

// False for a block without ink.
bool ReadBlock(const WorkGrid& grid, int firstRow, std::size_t wordIndex, Block& block) {
    const int count = std::min(kSide, grid.Rows() - firstRow);
    Word any = 0;
    block.fill(0);
    for (int row = 0; row < count; ++row) {
        block[static_cast<std::size_t>(row)] = grid.Row(firstRow + row)[wordIndex];
        any |= block[static_cast<std::size_t>(row)];
    }
    return any != 0;
}

}  // namespace

WorkGrid Transposed(const WorkGrid& grid) {
    WorkGrid result(grid.Rows(), grid.Rows(), grid.Columns());
    Block block{};
    for (int firstRow = 0; firstRow < grid.Rows(); firstRow += kSide) {
        for (int firstColumn = 0; firstColumn < grid.Columns(); firstColumn += kSide) {
            if (!ReadBlock(grid, firstRow, static_cast<std::size_t>(firstColumn / kSide), block))
                continue;
            TransposeBlock(block);
            const int count = std::min(kSide, grid.Columns() - firstColumn);
            for (int column = 0; column < count; ++column)
                result.Row(firstColumn + column)[static_cast<std::size_t>(firstRow / kSide)] =
                    block[static_cast<std::size_t>(column)];
        }
    }
    return result;
}

}  // namespace tavrene::boxes
