#include "recognition/Outline.h"

#include <algorithm>

#include "recognition/ShiftSpiral.h"

namespace tavrene::recognition {
namespace {

int Held(int bound, int shift) {
    return std::max(0, bound + shift);
}

}  // namespace

GridRect Shifted(const GridRect& rect, int dx, int dy) {
    return {Held(rect.row0, dy), Held(rect.col0, dx), Held(rect.row1, dy), Held(rect.col1, dx)};
}

void BridgedLines::CopyOutline(const imaging::WorkGrid& grid, Along along, int firstLine, int lastLine,
                               int from, int to) {
    // Beyond the grid all is background, and a box far outside must not cost memory.
    const int lines = along == Along::Rows ? grid.Rows() : grid.Columns();
    const int cells = along == Along::Rows ? grid.Columns() : grid.Rows();
    firstLine_ = firstLine;
    lastLine_ = std::min(lastLine, lines - 1);
    from_ = from;
    to_ = std::min(to, cells - 1);
    perLine_ = std::max(0, to_ - from_ + 1) + 1;
    sums_.resize(static_cast<std::size_t>(std::max(0, lastLine_ - firstLine_ + 1)) *
                 static_cast<std::size_t>(perLine_));
    for (int line = firstLine_; line <= lastLine_; ++line) {
        if (along == Along::Rows)
            SumLine(line, [&grid, line](int cell) { return grid.IsInk(cell, line); });
        else
            SumLine(line, [&grid, line](int cell) { return grid.IsInk(line, cell); });
    }
}

template <typename Ink>
void BridgedLines::SumLine(int line, Ink ink) {
    int* next = sums_.data() + Offset(line);
    int sum = 0;
    *next++ = sum;
    bool before = ink(from_ - 1);
    bool here = ink(from_);
    for (int cell = from_; cell <= to_; ++cell) {
        const bool after = ink(cell + 1);
        sum += static_cast<int>(here) | (static_cast<int>(before) & static_cast<int>(after));
        *next++ = sum;
        before = here;
        here = after;
    }
}

int BridgedLines::Between(int line, int from, int to) const {
    const int first = from + 1;
    const int last = std::min(to - 1, to_);
    if (line > lastLine_ || last < first)
        return 0;
    const int* const sums = sums_.data() + Offset(line);
    return sums[last + 1 - from_] - sums[first - from_];
}

void OutlineNeighbourhood::CopyOutline(const imaging::WorkGrid& grid, const GridRect& nominal) {
    using enum BridgedLines::Along;
    grid_ = &grid;
    const GridRect low = Shifted(nominal, -kMaxShift, -kMaxShift);
    const GridRect high = Shifted(nominal, kMaxShift, kMaxShift);
    lower_.CopyOutline(grid, Rows, low.row0, high.row0, low.col0, high.col1);
    upper_.CopyOutline(grid, Rows, low.row1, high.row1, low.col0, high.col1);
    left_.CopyOutline(grid, Columns, low.col0, high.col0, low.row0, high.row1);
    right_.CopyOutline(grid, Columns, low.col1, high.col1, low.row0, high.row1);
}

int OutlineNeighbourhood::CountOutline(const GridRect& shifted) const {
    const auto& [row0, col0, row1, col1] = shifted;
    if (row1 < row0 || col1 < col0)
        return 0;
    const auto corner = [this](int column, int row) { return grid_->IsInk(column, row) ? 1 : 0; };
    int count = corner(col0, row0) + lower_.Between(row0, col0, col1) + left_.Between(col0, row0, row1);
    if (col1 > col0)
        count += corner(col1, row0) + right_.Between(col1, row0, row1);
    if (row1 > row0)
        count += corner(col0, row1) + upper_.Between(row1, col0, col1);
    if (row1 > row0 && col1 > col0)
        count += corner(col1, row1);
    return count;
}

}  // namespace tavrene::recognition
