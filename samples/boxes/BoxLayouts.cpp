#include "boxes/BoxLayouts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace tavrene::samples {
namespace {

// Words whose letters have upright and level strokes, such as a box has.
constexpr std::array kWords = {"HOBOE", "DODO",  "nOBLE", "B0ND",  "0800", "HDB",   "Linen", "FELT", "EDEL",
                               "OHNE",  "minim", "HHnn",  "TEDDY", "|H|",  "PONTE", "dbqp",  "UHU",  "LIDL"};

std::string Words(Random& dice, int count) {
    std::string text;
    for (int index = 0; index < count; ++index) {
        text += kWords[static_cast<std::size_t>(dice.Between(0, kWords.size()))];
        text += ' ';
    }
    return text;
}

int Step(BoxSheet& sheet, int size, double millimetres) {
    return size + sheet.Mm(millimetres);
}

void PaintRows(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int right = sheet.Page().Width() - sheet.Mm(12);
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    sheet.AddText(sheet.Mm(12), sheet.Mm(12), 18, Words(sheet.Dice(), 4));
    for (int y = sheet.Mm(20); y < bottom; y += Step(sheet, size.Height, 7)) {
        for (int x = sheet.Mm(12); x < right; x += Step(sheet, size.Width, 22)) {
            sheet.AddBox(x, y, size);
            sheet.AddText(x + size.Width + sheet.Mm(2), y + size.Height, 9, Words(sheet.Dice(), 1));
        }
    }
}

void PaintGrid(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int right = sheet.Page().Width() - sheet.Mm(15);
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    for (int y = sheet.Mm(15); y < bottom; y += Step(sheet, size.Height, 3)) {
        for (int x = sheet.Mm(15); x < right; x += Step(sheet, size.Width, 3))
            sheet.AddBox(x, y, size);
    }
}

void PaintColumn(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int x = sheet.Mm(16);
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    for (int y = sheet.Mm(15); y < bottom; y += Step(sheet, size.Height, 5)) {
        sheet.AddBox(x, y, size);
        sheet.AddText(x + size.Width + sheet.Mm(3), y + size.Height - sheet.Mm(0.5), 11,
                      Words(sheet.Dice(), 5));
    }
}

constexpr std::array kPoints = {6.0, 7.0, 8.0, 9.0, 10.0, 11.0, 12.0, 14.0, 16.0, 20.0, 24.0};

// Text of every size above, beside and below the boxes, some of it as close as a pixel or two.
void PaintText(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int left = sheet.Mm(10);
    const int bottom = sheet.Page().Height() - sheet.Mm(12);
    std::size_t line = 0;
    for (int y = sheet.Mm(18); y < bottom; ++line) {
        const double height = kPoints[line % kPoints.size()];
        sheet.AddText(left, y, height, Words(sheet.Dice(), 9));
        y += sheet.Mm(2.5);
        for (int x = left; x < sheet.Page().Width() - sheet.Mm(40); x += sheet.Mm(45)) {
            sheet.AddBox(x, y, size);
            const int gap = 3 + static_cast<int>(line % 4);
            sheet.AddText(x + size.Width + gap, y + size.Height, height, Words(sheet.Dice(), 1));
        }
        y += size.Height + sheet.Mm(2 + kPoints[(line + 1) % kPoints.size()] * 0.36);
    }
}

// What else the cells of a table hold.
enum class CellBoxes : bool { None, OneEach };

void PaintCells(BoxSheet& sheet, const OuterSize& size, CellBoxes boxes) {
    const int left = sheet.Mm(12);
    const int top = sheet.Mm(15);
    const int rowHeight = Step(sheet, size.Height, 3);
    const int columnWidth = Step(sheet, size.Width, 20);
    const int rows = (sheet.Page().Height() - sheet.Mm(30)) / rowHeight;
    const int columns = (sheet.Page().Width() - sheet.Mm(24)) / columnWidth;
    const int thickness = sheet.Style().Thickness;
    for (int row = 0; row <= rows; ++row)
        sheet.AddRule(left, top + row * rowHeight, columns * columnWidth + thickness);
    for (int column = 0; column <= columns; ++column)
        sheet.AddUprightRule(left + column * columnWidth, top, rows * rowHeight + thickness);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const int x = left + column * columnWidth + sheet.Mm(2);
            const int y = top + row * rowHeight + (rowHeight + thickness - size.Height) / 2;
            if (boxes == CellBoxes::OneEach)
                sheet.AddBox(x, y, size);
            sheet.AddText(x + size.Width + sheet.Mm(2), y + size.Height, 10, Words(sheet.Dice(), 1));
        }
    }
}

void PaintTable(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    PaintCells(sheet, size, CellBoxes::OneEach);
}

void PaintFrames(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int width = sheet.Page().Width() - sheet.Mm(20);
    const int height = size.Height + sheet.Mm(9);
    for (int y = sheet.Mm(10); y < sheet.Page().Height() - height - sheet.Mm(5); y += height + sheet.Mm(4)) {
        sheet.AddFrame(sheet.Mm(10), y, width, height);
        sheet.AddText(sheet.Mm(12), y + sheet.Mm(4), 7, Words(sheet.Dice(), 7));
        for (int x = sheet.Mm(13); x < width - sheet.Mm(15); x += Step(sheet, size.Width, 13)) {
            sheet.AddBox(x, y + sheet.Mm(6), size);
            sheet.AddText(x + size.Width + sheet.Mm(1), y + sheet.Mm(6) + size.Height, 8,
                          Words(sheet.Dice(), 1));
        }
    }
}

// Whether a ruling runs beside a side of its boxes or is that side.
enum class RulingSide { Touching, Shared };

int RulingPlace(RulingSide side, bool behind, int place, int extent, int thickness) {
    if (side == RulingSide::Shared)
        return behind ? place + extent - thickness : place;
    return behind ? place + extent : place - thickness;
}

// A level ruling under or over the boxes of each line in the upper half, an upright one to the right or to
// the left of those of each column in the lower half.
void PaintOnRulings(BoxSheet& sheet, const OuterSize& size, RulingSide side) {
    const int left = sheet.Mm(12);
    const int right = sheet.Page().Width() - sheet.Mm(30);
    const int thickness = sheet.Style().Thickness;
    int y = sheet.Mm(12);
    const int half = sheet.Page().Height() / 2;
    for (bool under = true; y < half; y += Step(sheet, size.Height, 8), under = !under) {
        sheet.AddRule(left, RulingPlace(side, under, y, size.Height, thickness), right - left);
        for (int x = left + sheet.Mm(5); x < right - sheet.Mm(12); x += Step(sheet, size.Width, 15))
            sheet.AddBox(x, y, size);
    }
    const int bottom = sheet.Page().Height() - sheet.Mm(20);
    bool behind = false;
    for (int x = left; x < right; x += Step(sheet, size.Width, 20), behind = !behind) {
        sheet.AddUprightRule(RulingPlace(side, behind, x, size.Width, thickness), y, bottom - y);
        for (int line = y + sheet.Mm(5); line < bottom - sheet.Mm(12); line += Step(sheet, size.Height, 9))
            sheet.AddBox(x, line, size);
    }
}

void PaintTouchingRulings(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    PaintOnRulings(sheet, size, RulingSide::Touching);
}

void PaintSidesOnRulings(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    PaintOnRulings(sheet, size, RulingSide::Shared);
}

void PaintTwoSizes(BoxSheet& sheet, const OuterSize& size, const OuterSize& second) {
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    bool isSecond = false;
    for (int y = sheet.Mm(15); y < bottom; y += Step(sheet, size.Height, 6), isSecond = !isSecond) {
        const OuterSize& current = isSecond ? second : size;
        for (int x = sheet.Mm(12); x < sheet.Page().Width() - sheet.Mm(30); x += sheet.Mm(30)) {
            sheet.AddBox(x, y, current);
            sheet.AddText(x + current.Width + sheet.Mm(2), y + current.Height, 10, Words(sheet.Dice(), 1));
        }
    }
}

void PaintStrips(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    for (int y = sheet.Mm(15); y < bottom; y += Step(sheet, size.Height, 8)) {
        for (int index = 0; index < 8; ++index)
            sheet.AddBox(sheet.Mm(15) + index * (size.Width - sheet.Style().Thickness), y, size);
    }
}

void PaintDiagonal(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    sheet.AllowDiagonal();
    const int width = sheet.Page().Width();
    const int step = Step(sheet, size.Width, 2);
    int shift = -3;
    for (int x = sheet.Mm(5); x + step < width; x += step, shift = shift == 3 ? -3 : shift + 1) {
        // The box's lower edge is at row x + shift, or at row x + width + shift.
        const int lower = x % 2 == 0 ? x : x + size.Width;
        const int y = sheet.Page().Height() - (lower + shift) - size.Height;
        if (y > sheet.Mm(3))
            sheet.AddBox(x, y, size);
    }
}

void PaintJoined(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    constexpr int side = 5;
    const int bottom = sheet.Page().Height() - sheet.Mm(15) - side * size.Height;
    const int right = sheet.Page().Width() - sheet.Mm(10) - side * size.Width;
    const int thickness = sheet.Style().Thickness;
    sheet.AllowDiagonal();
    for (int y = sheet.Mm(15); y < bottom; y += side * size.Height + sheet.Mm(9)) {
        for (int x = sheet.Mm(10); x < right; x += side * size.Width + sheet.Mm(9)) {
            sheet.AddText(x, y - sheet.Mm(2), 9, Words(sheet.Dice(), 2));
            for (int index = 0; index < side * side; ++index)
                sheet.AddBox(x + index % side * (size.Width - thickness),
                             y + index / side * (size.Height - thickness), size);
        }
    }
}

void PaintSmallSecond(BoxSheet& sheet, const OuterSize& size, const OuterSize& second) {
    const int bottom = sheet.Page().Height() - sheet.Mm(15);
    const auto every = static_cast<int>(sheet.Dice().Between(13, 34));
    int count = 0;
    for (int y = sheet.Mm(15); y < bottom; y += Step(sheet, std::max(size.Height, second.Height), 4)) {
        for (int x = sheet.Mm(12); x < sheet.Page().Width() - sheet.Mm(16);
             x += Step(sheet, size.Width, 10)) {
            // The first ones come early, so that a short page has some as well.
            const OuterSize& current = ++count % every == 5 ? second : size;
            sheet.AddBox(x, y, current);
            sheet.AddText(x + current.Width + sheet.Mm(1), y + current.Height, 6, Words(sheet.Dice(), 1));
        }
    }
}

void PaintTextAlone(BoxSheet& sheet, const OuterSize&, const OuterSize&) {
    std::size_t line = 0;
    for (int y = sheet.Mm(12); y < sheet.Page().Height() - sheet.Mm(10); ++line) {
        sheet.AddText(sheet.Mm(10), y, kPoints[line % kPoints.size()], Words(sheet.Dice(), 14));
        y += sheet.Mm(1.5 + kPoints[(line + 1) % kPoints.size()] * 0.36);
    }
}

void PaintOval(Canvas& page, int left, int top, const OuterSize& size, double thickness) {
    const double radiusX = size.Width / 2.0;
    const double radiusY = size.Height / 2.0;
    for (int y = 0; y < size.Height; ++y) {
        for (int x = 0; x < size.Width; ++x) {
            const double awayX = x + 0.5 - radiusX;
            const double awayY = y + 0.5 - radiusY;
            const double outside = std::hypot(awayX / radiusX, awayY / radiusY);
            const double inside = std::hypot(awayX / (radiusX - thickness), awayY / (radiusY - thickness));
            if (outside <= 1 && inside > 1)
                page.Set(left + x, top + y, kBlack);
        }
    }
}

void PaintOvals(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    for (int y = sheet.Mm(15); y < sheet.Page().Height() - sheet.Mm(15); y += Step(sheet, size.Height, 5)) {
        for (int x = sheet.Mm(12); x < sheet.Page().Width() - sheet.Mm(30);
             x += Step(sheet, size.Width, 18)) {
            PaintOval(sheet.Page(), x, y, size, sheet.Style().Thickness + 0.5);
            sheet.AddText(x + size.Width + sheet.Mm(2), y + size.Height, 9, Words(sheet.Dice(), 1));
        }
    }
}

void PaintTableAlone(BoxSheet& sheet, const OuterSize& size, const OuterSize&) {
    PaintCells(sheet, size, CellBoxes::None);
}

constexpr std::array kUsual = {BoxLayout{"rows", false, PaintRows},
                               BoxLayout{"grid", false, PaintGrid},
                               BoxLayout{"column", false, PaintColumn},
                               BoxLayout{"text", false, PaintText},
                               BoxLayout{"table", false, PaintTable},
                               BoxLayout{"frames", false, PaintFrames},
                               BoxLayout{"ruling", false, PaintTouchingRulings},
                               BoxLayout{"two sizes", true, PaintTwoSizes}};

}  // namespace

std::span<const BoxLayout> UsualLayouts() {
    return kUsual;
}

const BoxLayout& SharedSides() {
    static constexpr BoxLayout layout{"shared sides", false, PaintStrips};
    return layout;
}

const BoxLayout& SidesOnRulings() {
    static constexpr BoxLayout layout{"sides on rulings", false, PaintSidesOnRulings};
    return layout;
}

const BoxLayout& OnTheDiagonal() {
    static constexpr BoxLayout layout{"diagonal", false, PaintDiagonal};
    return layout;
}

const BoxLayout& JoinedGrids() {
    static constexpr BoxLayout layout{"joined", false, PaintJoined};
    return layout;
}

const BoxLayout& SmallSecondSize() {
    static constexpr BoxLayout layout{"few of a second size", true, PaintSmallSecond};
    return layout;
}

std::span<const BoxLayout> BoxlessLayouts() {
    static constexpr std::array layouts = {BoxLayout{"text alone", false, PaintTextAlone},
                                           BoxLayout{"ovals alone", false, PaintOvals},
                                           BoxLayout{"tables alone", false, PaintTableAlone}};
    return layouts;
}

void PaintDensePage(BoxSheet& sheet, const OuterSize& size, int lines) {
    constexpr int columns = 4;
    constexpr int rows = 65;
    const int pitch = (sheet.Page().Height() - sheet.Mm(20)) / rows;
    const int columnWidth = (sheet.Page().Width() - sheet.Mm(16)) / columns;
    for (int index = 0; index < rows * columns; ++index)
        sheet.AddBox(sheet.Mm(8) + index % columns * columnWidth, sheet.Mm(10) + index / columns * pitch,
                     size);
    for (int line = 0; line < lines; ++line) {
        const int y = sheet.Mm(13) + (sheet.Page().Height() - sheet.Mm(22)) / lines * line;
        for (int column = 0; column < columns; ++column)
            sheet.AddText(sheet.Mm(13) + column * columnWidth, y, 7, Words(sheet.Dice(), 5));
    }
}

}  // namespace tavrene::samples
