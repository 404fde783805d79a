#include "boxes/LineScan.h"

#include <algorithm>
#include <limits>

#include "boxes/GridTranspose.h"
#include "boxes/RunScan.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;
using Word = WorkGrid::Word;
constexpr int kWordBits = WorkGrid::kWordBits;

// Runs this much shorter than the smallest side still keep a row from being skipped, and are still collected.
// A side loses its ends where corners are rounded or worn; the skip comes before gaps are closed across,
// which may bridge some more, so it forgives twice as much as the collecting.
constexpr int kMarkSlack = 6;
constexpr int kShortSlack = 3;
// Runs this much longer than the largest side are not yet long lines: a side that runs over its corners is no
// ruled line, which would be wiped off the page.
constexpr int kLongSlack = 3;

// Ones at the columns from `first` to `last`, both inclusive, of the word that starts at column `base`.
Word ColumnMask(int base, int first, int last) {
    const int low = std::max(first - base, 0);
    const int high = std::min(last - base, kWordBits - 1);
    if (low > high)
        return 0;
    return (~Word{0} << low) & (~Word{0} >> (kWordBits - 1 - high));
}

// A filled pixel always has ink behind it and ahead of it, so it never causes another to be filled, and a
// whole word can be filled at once from the pixels as they were.
void CloseGapsInRow(std::span<Word> row, int width) {
    Word before = 0;
    for (std::size_t index = 0; index < row.size(); ++index) {
        const Word word = row[index];
        const Word after = index + 1 < row.size() ? row[index + 1] : 0;
        const Word inkBefore = (word << 1) | (before >> (kWordBits - 1));
        const Word inkAfter = (word >> 1) | (after << (kWordBits - 1));
        const Word inside = ColumnMask(static_cast<int>(index) * kWordBits, 1, width - 2);
        row[index] = word | (inkBefore & inkAfter & inside);
        before = word;
    }
}

void CloseGapsInColumns(WorkGrid& grid) {
    if (grid.Rows() < 3)
        return;
    std::vector<Word> below(grid.Row(0).begin(), grid.Row(0).end());
    for (int row = 1; row + 1 < grid.Rows(); ++row) {
        const std::span<Word> current = grid.Row(row);
        const std::span<const Word> above = grid.Row(row + 1);
        for (std::size_t index = 0; index < current.size(); ++index) {
            const Word word = current[index];
            const Word inside = ColumnMask(static_cast<int>(index) * kWordBits, 0, grid.Width() - 1);
            current[index] = word | (below[index] & above[index] & inside);
            below[index] = word;
        }
    }
}

// Only runs that end before the third pixel from the far edge are compared.
bool HasClosedRun(std::span<const Word> bits, int length, int minimum) {
    const int limit = std::max(length - 2, 0);
    int longest = 0;
    ForEachRun(bits, limit, [&](int start, int end) {
        if (end < limit)
            longest = std::max(longest, end - start);
    });
    return longest >= minimum;
}

LineSeg MakeSegment(Orientation orientation, int line, int start, int end) {
    LineSeg segment;
    const bool vertical = orientation == Orientation::Vertical;
    segment.Orientation = orientation;
    segment.L = static_cast<std::int16_t>(vertical ? line : start);
    segment.R = static_cast<std::int16_t>(vertical ? line : end);
    segment.T = static_cast<std::int16_t>(vertical ? start : line);
    segment.B = static_cast<std::int16_t>(vertical ? end : line);
    segment.Length = static_cast<std::int16_t>(end - start);
    return segment;
}

struct LengthRange {
    int shortest;
    int longest;
};

constexpr std::size_t kMostSegments = 2'000'000;
constexpr int kNoLimit = std::numeric_limits<int>::max();

// Appends the runs of the first `lines` lines of `grid` that are not skipped and whose length is in range.
void CollectRuns(const WorkGrid& grid, int lines, const std::vector<bool>& skip, Orientation orientation,
                 LengthRange range, std::vector<LineSeg>& segments) {
    for (int line = 0; line < lines; ++line) {
        if (skip[static_cast<std::size_t>(line)])
            continue;
        // Noise of a whole page would fill the memory.
        if (segments.size() > kMostSegments)
            return;
        ForEachRun(grid.Row(line), grid.Width(), [&](int start, int end) {
            if (end - start >= range.shortest && end - start <= range.longest)
                segments.push_back(MakeSegment(orientation, line, start, end));
        });
    }
}

void CollectSegments(BoxAnalysis& analysis, LengthRange horizontal, LengthRange vertical) {
    const WorkGrid& grid = analysis.WorkGrid;
    analysis.Segments.clear();
    CollectRuns(grid, grid.Rows(), analysis.RowSkip, Orientation::Horizontal, horizontal, analysis.Segments);
    CollectRuns(Transposed(grid), grid.Width(), analysis.ColSkip, Orientation::Vertical, vertical,
                analysis.Segments);
    if (analysis.Segments.size() > kMostSegments)
        analysis.Work.Exhaust();
}

// Writes one cell past the end of the run too, as far as the grid goes.
void PaintSegment(WorkGrid& grid, const LineSeg& segment, bool ink) {
    if (segment.IsVertical()) {
        const int last = std::min(grid.Rows() - 1, static_cast<int>(segment.B));
        for (int row = segment.T; row <= last; ++row)
            grid.SetInk(segment.L, row, ink);
        return;
    }
    const int last = std::min(grid.Width() - 1, static_cast<int>(segment.R));
    const std::span<Word> row = grid.Row(segment.T);
    for (int index = segment.L / kWordBits; index <= last / kWordBits; ++index) {
        const Word mask = ColumnMask(index * kWordBits, segment.L, last);
        Word& word = row[static_cast<std::size_t>(index)];
        word = ink ? word | mask : word & ~mask;
    }
}

}  // namespace

void CloseGapsAndMarkRows(BoxAnalysis& analysis) {
    WorkGrid& grid = analysis.WorkGrid;
    analysis.RowSkip.assign(static_cast<std::size_t>(grid.Rows()), false);
    analysis.ColSkip.assign(static_cast<std::size_t>(grid.Columns()), false);
    for (int row = 0; row < grid.Rows(); ++row) {
        CloseGapsInRow(grid.Row(row), grid.Width());
        analysis.RowSkip[static_cast<std::size_t>(row)] =
            !HasClosedRun(grid.Row(row), grid.Width(), analysis.Sizes.BoxMinWidth - kMarkSlack);
    }
    CloseGapsInColumns(grid);
    const WorkGrid columns = Transposed(grid);
    for (int column = 0; column < grid.Width(); ++column)
        analysis.ColSkip[static_cast<std::size_t>(column)] =
            !HasClosedRun(columns.Row(column), grid.Rows(), analysis.Sizes.BoxMinHeight - kMarkSlack);
}

void MaskLongLines(BoxAnalysis& analysis) {
    CollectSegments(analysis, {analysis.Sizes.BoxMaxWidth + kLongSlack + 1, kNoLimit},
                    {analysis.Sizes.BoxMaxHeight + kLongSlack + 1, kNoLimit});
    analysis.LongLines = analysis.Segments;
    for (const LineSeg& line : analysis.LongLines)
        PaintSegment(analysis.SaveGrid, line, false);
    analysis.WorkGrid = analysis.SaveGrid.Clone();
}

void FindLines(BoxAnalysis& analysis) {
    const BoxSizes& sizes = analysis.Sizes;
    CollectSegments(analysis, {sizes.BoxMinWidth - kShortSlack, sizes.BoxMaxWidth},
                    {sizes.BoxMinHeight - kShortSlack, sizes.BoxMaxHeight});
}

void RestoreLongLines(BoxAnalysis& analysis) {
    analysis.SaveGrid = analysis.WorkGrid.Clone();
    for (const LineSeg& line : analysis.LongLines)
        PaintSegment(analysis.SaveGrid, line, true);
}

}  // namespace tavrene::boxes
