#pragma once

#include <cstddef>
#include <vector>

#include "imaging/WorkGrid.h"

namespace tavrene::recognition {

/// A rectangle in the grid frame, all four bounds inclusive; row0 is the lower edge. Empty when a second
/// bound is smaller than its first.
struct GridRect {
    int row0 = 0;
    int col0 = 0;
    int row1 = 0;
    int col1 = 0;
    bool operator==(const GridRect&) const = default;
};

/// `rect` moved, each bound held at 0; there is no bound above.
GridRect Shifted(const GridRect& rect, int dx, int dy);

/// Bridged ink along a bundle of neighbouring rows or columns, as running sums. A cell counts when it is ink
/// or when both its neighbours on the line are, which closes gaps of one pixel in a printed outline.
class BridgedLines {
  public:
    enum class Along { Rows, Columns };

    /// The lines `firstLine` to `lastLine`, each over the cells `from` to `to`; all inclusive.
    void CopyOutline(const imaging::WorkGrid& grid, Along along, int firstLine, int lastLine, int from,
                     int to);

    /// Bridged cells of `line` strictly between the cells `from` and `to`.
    int Between(int line, int from, int to) const;

  private:
    template <typename Ink>
    void SumLine(int line, Ink ink);
    std::ptrdiff_t Offset(int line) const {
        return static_cast<std::ptrdiff_t>(line - firstLine_) * perLine_;
    }

    int firstLine_ = 0;
    int lastLine_ = -1;
    int from_ = 0;
    int to_ = -1;
    int perLine_ = 1;
    std::vector<int> sums_;
};

/// Everything needed to count the outline of a box at any shift of up to `kMaxShift` in constant time: the
/// four sides over all their possible places. Keeps its memory between boxes.
class OutlineNeighbourhood {
  public:
    /// Looks at the surroundings of the unshifted rectangle. The grid must outlive the counting.
    void CopyOutline(const imaging::WorkGrid& grid, const GridRect& nominal);

    /// Ink cells on the border of a shifted rectangle after gaps of one pixel in each side are bridged;
    /// corner cells count once and are never bridged. Cells outside the grid are background.
    int CountOutline(const GridRect& shifted) const;

  private:
    const imaging::WorkGrid* grid_ = nullptr;
    BridgedLines lower_;
    BridgedLines upper_;
    BridgedLines left_;
    BridgedLines right_;
};

}  // namespace tavrene::recognition
