#include "boxes/PointIndex.h"

#include <algorithm>

namespace tavrene::boxes {

PointIndex::PointIndex(int width, int height, int cellSize)
    : cellSize_(std::max(cellSize, 1)),
      columns_(std::max(width, 0) / cellSize_ + 1),
      rows_(std::max(height, 0) / cellSize_ + 1),
      cells_(CellAt(0, rows_)) {}

int PointIndex::CellColumn(int x) const {
    return std::clamp(x / cellSize_, 0, columns_ - 1);
}

int PointIndex::CellRow(int y) const {
    return std::clamp(y / cellSize_, 0, rows_ - 1);
}

void PointIndex::Add(int number, int x, int y) {
    CellOf(x, y).push_back(number);
}

void PointIndex::Move(int number, int fromX, int fromY, int toX, int toY) {
    std::vector<int>& from = CellOf(fromX, fromY);
    std::vector<int>& to = CellOf(toX, toY);
    if (&from == &to)
        return;
    std::erase(from, number);
    to.push_back(number);
}

}  // namespace tavrene::boxes
