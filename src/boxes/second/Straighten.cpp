#include "boxes/second/Straighten.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>
#include <vector>

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;
using Word = WorkGrid::Word;
constexpr int kWordBits = WorkGrid::kWordBits;

struct Place {
    int Column;
    int Row;
};

template <typename Visit>
void ForEachBit(Word word, int first, Visit visit) {
    for (; word != 0; word &= word - 1)
        visit(first + std::countr_zero(word));
}

// Ink with none on the row above, thinned out evenly on a dense page: a sample tells the slant as well.
std::vector<Place> UpperEnds(const WorkGrid& page) {
    constexpr std::size_t enough = 40'000;
    std::vector<Place> ends;
    for (int row = 0; row + 1 < page.Rows(); ++row) {
        const std::span<const Word> ink = page.Row(row);
        const std::span<const Word> above = page.Row(row + 1);
        for (std::size_t index = 0; index < ink.size(); ++index) {
            ForEachBit(ink[index] & ~above[index], static_cast<int>(index) * kWordBits, [&](int column) {
                ends.push_back({column, row});
            });
        }
    }
    const std::size_t step = ends.size() / enough + 1;
    std::vector<Place> sample;
    for (std::size_t index = 0; index < ends.size(); index += step)
        sample.push_back(ends[index]);
    return sample;
}

// How much the places crowd on few rows when the page is sheared by a slant.
double Crowding(const std::vector<Place>& places, int width, int height, Slant slant) {
    const int margin = static_cast<int>(std::abs(slant) * width) + 2;
    std::vector<int> rows(static_cast<std::size_t>(height + 2 * margin));
    const int middle = width / 2;
    for (const Place& place : places)
        ++rows[static_cast<std::size_t>(margin + place.Row + std::lround(-slant * (place.Column - middle)))];
    double sum = 0;
    for (const int count : rows)
        sum += static_cast<double>(count) * count;
    return sum;
}

int Shift(Slant slant, int distance) {
    return static_cast<int>(std::lround(slant * distance));
}

}  // namespace

Slant SlantOf(const WorkGrid& page) {
    constexpr int steps = 50;
    constexpr double step = 0.05 * std::numbers::pi / 180;
    constexpr int least = 4;  // a fifth of a degree
    const std::vector<Place> places = UpperEnds(page);
    int best = 0;
    double most = Crowding(places, page.Columns(), page.Rows(), 0);
    for (int number = -steps; number <= steps; ++number) {
        const double crowding = Crowding(places, page.Columns(), page.Rows(), number * step);
        if (crowding > most) {
            most = crowding;
            best = number;
        }
    }
    return std::abs(best) < least ? 0 : best * step;
}

Straightened::Straightened(const WorkGrid& page, Slant slant)
    : slant_(slant),
      middleColumn_(page.Width() / 2),
      middleRow_(page.Rows() / 2),
      page_(page.Width(), page.Columns(), page.Rows()) {
    for (int row = 0; row < page.Rows(); ++row) {
        const std::span<const Word> ink = page.Row(row);
        for (std::size_t index = 0; index < ink.size(); ++index) {
            ForEachBit(ink[index], static_cast<int>(index) * kWordBits, [&](int column) {
                const int straightRow = row - Shift(slant, column - middleColumn_);
                const int straightColumn = column + Shift(slant, straightRow - middleRow_);
                if (straightRow >= 0 && straightRow < page.Rows() && straightColumn >= 0 &&
                    straightColumn < page.Columns())
                    page_.SetInk(straightColumn, straightRow);
            });
        }
    }
}

BoxRect Straightened::PutBack(const BoxRect& box) const {
    const int row = (box.T + box.B) / 2;
    const int acrossShift = -Shift(slant_, row - middleRow_);
    const int column = (box.L + box.R) / 2 + acrossShift;
    const int upShift = Shift(slant_, column - middleColumn_);
    BoxRect back = box;
    back.L = static_cast<std::int16_t>(box.L + acrossShift);
    back.R = static_cast<std::int16_t>(box.R + acrossShift);
    back.T = static_cast<std::int16_t>(box.T + upShift);
    back.B = static_cast<std::int16_t>(box.B + upShift);
    return back;
}

}  // namespace tavrene::boxes
