#include "imaging/WorkGrid.h"

#include <algorithm>
#include <array>

#include "imaging/BitCount.h"

namespace tavrene::imaging {
namespace {

constexpr std::array<std::uint8_t, 256> MirroredBytes() {
    std::array<std::uint8_t, 256> table{};
    for (unsigned value = 0; value < 256; ++value) {
        unsigned mirrored = 0;
        for (unsigned bit = 0; bit < 8; ++bit)
            mirrored |= ((value >> bit) & 1U) << (7 - bit);
        table[value] = static_cast<std::uint8_t>(mirrored);
    }
    return table;
}

constexpr std::array<std::uint8_t, 256> kMirrored = MirroredBytes();

}  // namespace

WorkGrid::WorkGrid(int width, int columns, int rows)
    : width_(width),
      columns_(columns),
      rows_(rows),
      wordsPerRow_((static_cast<std::size_t>(columns) + kWordBits - 1) / kWordBits),
      words_(wordsPerRow_ * static_cast<std::size_t>(rows)) {}

WorkGrid WorkGrid::Clone() const {
    WorkGrid copy;
    copy.width_ = width_;
    copy.columns_ = columns_;
    copy.rows_ = rows_;
    copy.wordsPerRow_ = wordsPerRow_;
    copy.words_ = words_;
    return copy;
}

int WorkGrid::CountInkInRow(int row, int first, int last) const {
    return CountBits(Row(row), first, last);
}

void WorkGrid::UnpackScanLine(int row, std::span<const std::uint8_t> scanLine) {
    const std::span<Word> words = Row(row);
    std::fill(words.begin(), words.end(), Word{0});
    const std::size_t bytes = std::min(scanLine.size(), static_cast<std::size_t>(columns_) / 8);
    for (std::size_t index = 0; index < bytes; ++index) {
        if (scanLine[index] != 0)
            words[index / 8] |= Word{kMirrored[scanLine[index]]} << (index % 8 * 8);
    }
}

}  // namespace tavrene::imaging
