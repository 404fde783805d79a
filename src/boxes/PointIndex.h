#pragma once

#include <cstddef>
#include <vector>

namespace tavrene::boxes {

/// Bounds of a search, in columns and rows, all inclusive. Empty when an upper bound is below its lower one.
struct SearchRect {
    int Left;
    int Bottom;
    int Right;
    int Top;

    bool Contains(int x, int y) const { return x >= Left && x <= Right && y >= Bottom && y <= Top; }
};

/// Numbers at points of the page, kept in square cells so that those near a place are found without a walk
/// over all. A point may move; its number stays.
class PointIndex {
  public:
    /// Points may lie anywhere; those outside 0 to `width` and 0 to `height` share the cells at the rim.
    /// `cellSize` (at least 1) should be about the size of the windows asked for.
    PointIndex(int width, int height, int cellSize);

    void Add(int number, int x, int y);
    void Move(int number, int fromX, int fromY, int toX, int toY);

    /// Calls `visit(number)` for the points of every cell that the searched touches, in no order; points
    /// outside the searched may be among them. Returns the work: the cells and points visited.
    template <typename Visit>
    std::size_t VisitNear(const SearchRect& searched, Visit visit) const {
        if (searched.Right < searched.Left || searched.Top < searched.Bottom)
            return 0;
        std::size_t work = 0;
        const int lastColumn = CellColumn(searched.Right);
        const int lastRow = CellRow(searched.Top);
        for (int row = CellRow(searched.Bottom); row <= lastRow; ++row) {
            for (int column = CellColumn(searched.Left); column <= lastColumn; ++column) {
                const std::vector<int>& cell = cells_[CellAt(column, row)];
                for (const int number : cell)
                    visit(number);
                work += 1 + cell.size();
            }
        }
        return work;
    }

  private:
    int CellColumn(int x) const;
    int CellRow(int y) const;
    std::size_t CellAt(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    std::vector<int>& CellOf(int x, int y) { return cells_[CellAt(CellColumn(x), CellRow(y))]; }

    int cellSize_;
    int columns_;
    int rows_;
    std::vector<std::vector<int>> cells_;
};

}  // namespace tavrene::boxes
