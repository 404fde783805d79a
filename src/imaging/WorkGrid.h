#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace tavrene::imaging {

/// The pixels of one binarised image: a cell is ink or background.
///
///     page frame (documents, editor, screen)      grid frame (here)
///     (0,0)---> x = column                        row H-1  (top scan line)
///       |                                           ^
///       v  y                                        | row
///                                                 (0,0)---> column     row 0 = bottom scan line
///
/// Columns run over the padded scan line (pitch x 8), of which the first `Width()` belong to the picture.
/// Reads outside the grid give background. A page takes megabytes, so a grid is moved, or copied by name with
/// `Clone`.
class WorkGrid {
  public:
    using Word = std::uint64_t;
    static constexpr int kWordBits = 64;

    WorkGrid() = default;

    /// All background. `columns` is at least `width`.
    WorkGrid(int width, int columns, int rows);

    WorkGrid(WorkGrid&&) noexcept = default;
    WorkGrid& operator=(WorkGrid&&) noexcept = default;
    WorkGrid(const WorkGrid&) = delete;
    WorkGrid& operator=(const WorkGrid&) = delete;
    ~WorkGrid() = default;
    WorkGrid Clone() const;

    int Width() const { return width_; }
    int Columns() const { return columns_; }
    int Rows() const { return rows_; }

    bool IsInk(int column, int row) const {
        // As unsigned numbers the negative ones lie beyond the far edges.
        if (static_cast<unsigned>(column) >= static_cast<unsigned>(columns_) ||
            static_cast<unsigned>(row) >= static_cast<unsigned>(rows_))
            return false;
        return ((words_[WordIndex(column, row)] >> BitOf(column)) & 1U) != 0;
    }

    /// Writes one cell; it must lie inside the grid.
    void SetInk(int column, int row, bool ink = true) {
        Word& word = words_[WordIndex(column, row)];
        const Word bit = Word{1} << BitOf(column);
        word = ink ? word | bit : word & ~bit;
    }

    /// Ink cells of row `row` from column `first` to `last`, both inclusive and inside the grid.
    int CountInkInRow(int row, int first, int last) const;

    /// One row as words: bit k of word w is column w x 64 + k. Bits beyond `Columns()` are 0.
    std::span<const Word> Row(int row) const { return {words_.data() + Offset(row), wordsPerRow_}; }
    std::span<Word> Row(int row) { return {words_.data() + Offset(row), wordsPerRow_}; }

    /// Fills row `row` from a scan line of the image library: the most significant bit of byte b is column
    /// 8b, 1 is ink.
    void UnpackScanLine(int row, std::span<const std::uint8_t> scanLine);

    bool operator==(const WorkGrid& other) const = default;

  private:
    std::size_t Offset(int row) const { return static_cast<std::size_t>(row) * wordsPerRow_; }
    std::size_t WordIndex(int column, int row) const {
        return Offset(row) + static_cast<std::size_t>(column) / kWordBits;
    }
    static unsigned BitOf(int column) { return static_cast<unsigned>(column) % kWordBits; }

    int width_ = 0;
    int columns_ = 0;
    int rows_ = 0;
    std::size_t wordsPerRow_ = 0;
    std::vector<Word> words_;
};

/// The grid row of a page ordinate, and the page ordinate of a grid row: the one place where anything is
/// flipped.
template <typename Number>
constexpr Number FlipVertically(Number height, Number ordinate) {
    return height - ordinate;
}

}  // namespace tavrene::imaging
