#include "profiles/BoxCells.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>
#include <utility>

#include "profiles/BoxPlace.h"
#include "profiles/BoxSelection.h"

namespace tavrene::profiles {
namespace {

// Boxes are of one line while each lies less than this share of a box off the one before it.
constexpr double kUnevenness = 0.5;

// Columns with so many times the usual distance between them are of two blocks.
constexpr double kWideGap = 1.8;

// Of a grid at least so many cells have a box.
constexpr double kMostlyFilled = 0.6;

double Median(std::vector<double> values) {
    if (values.empty())
        return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Lines {
    std::vector<int> lineOf;      // of each box, from 0
    std::vector<double> middles;  // of each line
};

Lines LinesOf(const std::vector<double>& middles, double size) {
    std::vector<std::size_t> order(middles.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return middles[a] < middles[b]; });
    Lines lines;
    lines.lineOf.resize(middles.size());
    double last = 0;
    for (const std::size_t index : order) {
        if (lines.middles.empty() || middles[index] - last > kUnevenness * size)
            lines.middles.push_back(middles[index]);
        last = middles[index];
        lines.lineOf[index] = static_cast<int>(lines.middles.size()) - 1;
    }
    return lines;
}

// The block of each column, and the column's place in it.
std::vector<std::pair<int, int>> BlocksOf(const std::vector<double>& columns) {
    std::vector<double> gaps;
    for (std::size_t column = 1; column < columns.size(); ++column)
        gaps.push_back(columns[column] - columns[column - 1]);
    const double wide = kWideGap * Median(gaps);
    std::vector<std::pair<int, int>> blocks;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        const bool isNew = column > 0 && gaps.size() > 1 && gaps[column - 1] > wide;
        if (column == 0)
            blocks.emplace_back(1, 1);
        else if (isNew)
            blocks.emplace_back(blocks.back().first + 1, 1);
        else
            blocks.emplace_back(blocks.back().first, blocks.back().second + 1);
    }
    return blocks;
}

// Rows of a block count without the lines that it has no box in, and behind those of the blocks before it.
void CountRows(std::vector<BoxCell>& cells) {
    std::map<std::pair<int, int>, int> rows;
    for (const BoxCell& cell : cells)
        rows[{cell.block, cell.row}] = 0;
    int count = 0;
    for (auto& [place, row] : rows)
        row = ++count;
    for (BoxCell& cell : cells)
        cell.row = rows[{cell.block, cell.row}];
}

std::vector<int> Renumbered(std::vector<OmrBox>& boxes, const std::vector<int>& places,
                            const std::vector<int>& order) {
    std::vector<int> numbers(boxes.size());
    std::iota(numbers.begin(), numbers.end(), 1);
    const std::vector<OmrBox> before = boxes;
    for (std::size_t index = 0; index < places.size(); ++index) {
        boxes[static_cast<std::size_t>(places[index]) - 1] =
            before[static_cast<std::size_t>(order[index]) - 1];
        numbers[static_cast<std::size_t>(order[index]) - 1] = places[index];
    }
    return numbers;
}

struct Grid {
    std::vector<BoxCell> cells;
    std::size_t rows = 0;
    std::size_t columns = 0;
};

Grid GridOf(const std::vector<OmrBox>& boxes, std::span<const int> numbers) {
    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<double> widths;
    std::vector<double> heights;
    for (const int number : numbers) {
        const OmrBox& box = boxes[static_cast<std::size_t>(number) - 1];
        xs.push_back(MiddleOf(box).x);
        ys.push_back(MiddleOf(box).y);
        widths.push_back(PlaceOf(box).width);
        heights.push_back(PlaceOf(box).height);
    }
    const Lines rows = LinesOf(ys, Median(heights));
    const Lines columns = LinesOf(xs, Median(widths));
    const std::vector<std::pair<int, int>> blocks = BlocksOf(columns.middles);
    Grid grid{{}, rows.middles.size(), columns.middles.size()};
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        const auto& [block, column] = blocks[static_cast<std::size_t>(columns.lineOf[index])];
        grid.cells.push_back({numbers[index], block, rows.lineOf[index] + 1, column});
    }
    return grid;
}

// Boxes that only happen to stand below each other are no columns: they count along their row.
void CountAlongRows(const std::vector<OmrBox>& boxes, std::vector<BoxCell>& cells) {
    const auto left = [&](const BoxCell& cell) { return boxes[static_cast<std::size_t>(cell.number) - 1].L; };
    std::sort(cells.begin(), cells.end(), [&](const BoxCell& a, const BoxCell& b) {
        return std::tuple(a.row, left(a), a.number) < std::tuple(b.row, left(b), b.number);
    });
    int row = 0;
    int column = 0;
    for (BoxCell& cell : cells) {
        column = cell.row == row ? column + 1 : 1;
        row = cell.row;
        cell.block = 1;
        cell.column = column;
    }
}

}  // namespace

std::vector<BoxCell> CellsOf(const std::vector<OmrBox>& boxes, std::span<const int> numbers,
                             CellOrder order) {
    Grid grid = GridOf(boxes, numbers);
    std::vector<BoxCell>& cells = grid.cells;
    if (static_cast<double>(cells.size()) < kMostlyFilled * static_cast<double>(grid.rows * grid.columns))
        CountAlongRows(boxes, cells);
    CountRows(cells);
    std::sort(cells.begin(), cells.end(), [order](const BoxCell& a, const BoxCell& b) {
        return order == CellOrder::Across ? std::tuple(a.block, a.row, a.column, a.number) <
                                                std::tuple(b.block, b.row, b.column, b.number)
                                          : std::tuple(a.block, a.column, a.row, a.number) <
                                                std::tuple(b.block, b.column, b.row, b.number);
    });
    return cells;
}

std::vector<int> PutInOrder(std::vector<OmrBox>& boxes, const std::vector<int>& order) {
    std::vector<int> places = order;
    std::sort(places.begin(), places.end());
    return Renumbered(boxes, places, order);
}

std::vector<int> SortByPlace(std::vector<OmrBox>& boxes) {
    std::vector<BoxCell> cells = GridOf(boxes, KeptNumbers(boxes)).cells;
    const auto left = [&](const BoxCell& cell) { return boxes[static_cast<std::size_t>(cell.number) - 1].L; };
    std::stable_sort(cells.begin(), cells.end(), [&](const BoxCell& a, const BoxCell& b) {
        return std::pair(a.row, left(a)) < std::pair(b.row, left(b));
    });
    std::vector<int> order;
    order.reserve(cells.size());
    for (const BoxCell& cell : cells)
        order.push_back(cell.number);
    return PutInOrder(boxes, order);
}

std::vector<int> MoveInList(std::vector<OmrBox>& boxes, std::span<const int> numbers, int by) {
    const std::vector<int> kept = KeptNumbers(boxes);
    std::vector<int> order = kept;
    if (by > 0)
        std::reverse(order.begin(), order.end());
    const auto isMoved = [&](int number) {
        return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
    };
    if (order.empty() || isMoved(order.front()))
        return Renumbered(boxes, kept, kept);
    for (std::size_t place = 1; place < order.size(); ++place)
        if (isMoved(order[place]))
            std::swap(order[place - 1], order[place]);
    if (by > 0)
        std::reverse(order.begin(), order.end());
    return Renumbered(boxes, kept, order);
}

}  // namespace tavrene::profiles
