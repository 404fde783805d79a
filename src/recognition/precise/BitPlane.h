#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "imaging/WorkGrid.h"

namespace tavrene::recognition::precise {

/// A page as bits, one a cell; rows count upwards as in the grid frame. Around it lie empty words and rows,
/// so that a loop over a row may look one word to either side, and `kGuardRows` rows up or down, without a
/// test. Bits beyond the width are 0.
class BitPlane {
  public:
    using Word = std::uint64_t;
    static constexpr int kWordBits = 64;
    static constexpr int kGuardRows = 8;

    BitPlane() = default;
    BitPlane(int width, int height)
        : width_(width),
          height_(height),
          words_((width + kWordBits - 1) / kWordBits),
          cells_(static_cast<std::size_t>(words_ + 2) * static_cast<std::size_t>(height + 2 * kGuardRows)) {}

    int Width() const { return width_; }
    int Height() const { return height_; }
    int Words() const { return words_; }

    /// Word 0 of row `row`, which may lie up to `kGuardRows` beyond the plane; the words -1 to `Words()` may
    /// be read. Bit k of word w is column w x 64 + k.
    const Word* Row(int row) const { return cells_.data() + Offset(row); }
    Word* Row(int row) { return cells_.data() + Offset(row); }

    /// False outside the plane.
    bool Has(int column, int row) const {
        if (static_cast<unsigned>(column) >= static_cast<unsigned>(width_) ||
            static_cast<unsigned>(row) >= static_cast<unsigned>(height_))
            return false;
        return ((Row(row)[column / kWordBits] >> (static_cast<unsigned>(column) % kWordBits)) & 1U) != 0;
    }

    /// Sets a cell; dropped outside the plane.
    void Set(int column, int row) {
        if (static_cast<unsigned>(column) < static_cast<unsigned>(width_) &&
            static_cast<unsigned>(row) < static_cast<unsigned>(height_))
            Row(row)[column / kWordBits] |= Word{1} << (static_cast<unsigned>(column) % kWordBits);
    }

    /// The bits of the last word that belong to the plane.
    Word LastWordMask() const {
        const int rest = width_ % kWordBits;
        return rest == 0 ? ~Word{0} : (Word{1} << static_cast<unsigned>(rest)) - 1;
    }

    /// Takes away what a shift to the right has put beyond the width of a row.
    void TrimRow(int row) {
        if (words_ > 0)
            Row(row)[words_ - 1] &= LastWordMask();
        Row(row)[words_] = 0;
    }

    /// Cells that are set.
    std::size_t Count() const;

  private:
    std::size_t Offset(int row) const {
        return static_cast<std::size_t>(row + kGuardRows) * static_cast<std::size_t>(words_ + 2) + 1;
    }

    int width_ = 0;
    int height_ = 0;
    int words_ = 0;
    std::vector<Word> cells_;
};

/// Word `index` of a row whose cells were all `by` columns (1 to 63) further right: cell c comes to c + by.
inline BitPlane::Word FromLeft(const BitPlane::Word* row, int index, unsigned by) {
    return (row[index] << by) | (row[index - 1] >> (BitPlane::kWordBits - by));
}

/// The same further left.
inline BitPlane::Word FromRight(const BitPlane::Word* row, int index, unsigned by) {
    return (row[index] >> by) | (row[index + 1] << (BitPlane::kWordBits - by));
}

/// The picture of a grid without the padding of its scan lines.
BitPlane PlaneOf(const imaging::WorkGrid& grid);

/// Half as wide and high, rounded up: a cell is set when one of its four is.
BitPlane Halved(const BitPlane& plane);

/// Set where a cell within `reach` columns and rows is; `reach` is 8 at most.
BitPlane Dilated(const BitPlane& plane, int reach);

/// Set where the cell and all within two columns and rows of it are: the inside of what is solid.
BitPlane Eroded2(const BitPlane& plane);

/// The plane without cells that have no other within two columns and rows, if these are more than 0.2 % of
/// all; else as it is.
BitPlane WithoutNoise(BitPlane plane);

}  // namespace tavrene::recognition::precise
