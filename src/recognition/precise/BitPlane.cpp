#include "recognition/precise/BitPlane.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tavrene::recognition::precise {
namespace {

using Word = BitPlane::Word;

// Of scanners' noise there is much or none: every so many rows tell which.
constexpr int kProbedRows = 16;
constexpr double kNoiseShare = 0.002;

// The even bits of a word, pushed together.
Word EvenBits(Word word) {
    word &= 0x5555555555555555U;
    word = (word | (word >> 1U)) & 0x3333333333333333U;
    word = (word | (word >> 2U)) & 0x0F0F0F0F0F0F0F0FU;
    word = (word | (word >> 4U)) & 0x00FF00FF00FF00FFU;
    word = (word | (word >> 8U)) & 0x0000FFFF0000FFFFU;
    return (word | (word >> 16U)) & 0x00000000FFFFFFFFU;
}

// Cells with another one within two columns of the same row.
Word BesideInk(const Word* row, int index) {
    return FromLeft(row, index, 1) | FromLeft(row, index, 2) | FromRight(row, index, 1) |
           FromRight(row, index, 2);
}

// Cells that are set or beside a set one.
Word NearInk(const Word* row, int index) {
    return row[index] | BesideInk(row, index);
}

Word LoneCells(const BitPlane& plane, int row, int index) {
    const Word around = BesideInk(plane.Row(row), index) | NearInk(plane.Row(row - 1), index) |
                        NearInk(plane.Row(row - 2), index) | NearInk(plane.Row(row + 1), index) |
                        NearInk(plane.Row(row + 2), index);
    return plane.Row(row)[index] & ~around;
}

bool IsNoisy(const BitPlane& plane) {
    std::size_t lone = 0;
    std::size_t probed = 0;
    for (int row = kProbedRows / 2; row < plane.Height(); row += kProbedRows) {
        for (int index = 0; index < plane.Words(); ++index)
            lone += static_cast<std::size_t>(std::popcount(LoneCells(plane, row, index)));
        probed += static_cast<std::size_t>(plane.Width());
    }
    return static_cast<double>(lone) > kNoiseShare * static_cast<double>(probed);
}

void SpreadAlongRow(const Word* from, Word* to, int words, int reach) {
    for (int index = 0; index < words; ++index) {
        Word near = from[index];
        for (int by = 1; by <= reach; ++by)
            near |= FromLeft(from, index, static_cast<unsigned>(by)) |
                    FromRight(from, index, static_cast<unsigned>(by));
        to[index] = near;
    }
}

}  // namespace

std::size_t BitPlane::Count() const {
    std::size_t count = 0;
    for (const Word word : cells_)
        count += static_cast<std::size_t>(std::popcount(word));
    return count;
}

BitPlane PlaneOf(const imaging::WorkGrid& grid) {
    BitPlane plane(grid.Width(), grid.Rows());
    for (int row = 0; row < plane.Height(); ++row) {
        const auto words = grid.Row(row);
        std::copy_n(words.begin(), plane.Words(), plane.Row(row));
        plane.TrimRow(row);
    }
    return plane;
}

BitPlane Halved(const BitPlane& plane) {
    BitPlane half((plane.Width() + 1) / 2, (plane.Height() + 1) / 2);
    for (int row = 0; row < half.Height(); ++row) {
        // A row beyond the plane is an empty guard.
        const Word* const lower = plane.Row(2 * row);
        const Word* const upper = plane.Row(2 * row + 1);
        const auto pairs = [&](int index) {
            const Word both = lower[index] | upper[index];
            return EvenBits(both | (both >> 1U));
        };
        Word* const cells = half.Row(row);
        for (int index = 0; index < half.Words(); ++index) {
            const Word second = 2 * index + 1 < plane.Words() ? pairs(2 * index + 1) : 0;
            cells[index] = pairs(2 * index) | (second << 32U);
        }
    }
    return half;
}

BitPlane Dilated(const BitPlane& plane, int reach) {
    BitPlane wide(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        SpreadAlongRow(plane.Row(row), wide.Row(row), plane.Words(), reach);
        wide.TrimRow(row);
    }
    BitPlane result(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        Word* const cells = result.Row(row);
        for (int other = row - reach; other <= row + reach; ++other) {
            const Word* const from = wide.Row(other);
            for (int index = 0; index < plane.Words(); ++index)
                cells[index] |= from[index];
        }
    }
    return result;
}

BitPlane Eroded2(const BitPlane& plane) {
    BitPlane narrow(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        const Word* const from = plane.Row(row);
        Word* const to = narrow.Row(row);
        for (int index = 0; index < plane.Words(); ++index)
            to[index] = from[index] & FromLeft(from, index, 1) & FromLeft(from, index, 2) &
                        FromRight(from, index, 1) & FromRight(from, index, 2);
    }
    BitPlane result(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        Word* const to = result.Row(row);
        for (int index = 0; index < plane.Words(); ++index)
            to[index] = narrow.Row(row - 2)[index] & narrow.Row(row - 1)[index] & narrow.Row(row)[index] &
                        narrow.Row(row + 1)[index] & narrow.Row(row + 2)[index];
    }
    return result;
}

BitPlane WithoutNoise(BitPlane plane) {
    if (!IsNoisy(plane))
        return plane;
    BitPlane clean(plane.Width(), plane.Height());
    for (int row = 0; row < plane.Height(); ++row) {
        for (int index = 0; index < plane.Words(); ++index)
            clean.Row(row)[index] = plane.Row(row)[index] & ~LoneCells(plane, row, index);
    }
    return clean;
}

}  // namespace tavrene::recognition::precise
