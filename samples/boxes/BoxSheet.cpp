#include "boxes/BoxSheet.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include "boxes/OutlinePainter.h"

namespace tavrene::samples {
namespace {

Typeface& SansFace() {
    static Typeface face(Typeface::Style::Sans);
    return face;
}

void Whiten(Canvas& page, int x, int y, int width, int height) {
    for (int line = y; line < y + height; ++line) {
        for (int column = x; column < x + width; ++column)
            page.Set(column, line, kWhite);
    }
}

}  // namespace

BoxSheet::BoxSheet(int width, int height, int dpi, const OutlineStyle& style, std::uint64_t seed)
    : page_(width, height, dpi), style_(style), dice_(seed) {}

int BoxSheet::Mm(double millimetres) const {
    return static_cast<int>(std::lround(millimetres * page_.Dpi() / 25.4));
}

// The lower left or the lower right corner has about the same column as row.
bool BoxSheet::IsOnDiagonal(int x, int y, const OuterSize& size) const {
    constexpr int nearness = 12;
    const int lowerRow = page_.Height() - y - size.Height;
    return std::abs(x - lowerRow) <= nearness || std::abs(x + size.Width - lowerRow) <= nearness;
}

void BoxSheet::AddBox(int x, int y, const OuterSize& size) {
    if (!diagonalAllowed_ && IsOnDiagonal(x, y, size))
        return;
    const CentreLines lines = PaintOutline(page_, {x, y}, size, style_, dice_);
    const double topRow = page_.Height() - 1;
    truth_.push_back({lines.Left, topRow - lines.Bottom, lines.Right, topRow - lines.Top});
    if (style_.Print != BoxPrint::None)
        PrintInside(x, y, size);
    const auto firstSide = static_cast<int>(dice_.Between(0, 4));
    for (int count = 0; count < style_.Breaks; ++count)
        Interrupt((firstSide + count) % 4, x, y, size);
}

// Sides in the order top, right, bottom, left. The corners stay whole, so that a break is a break of one
// side.
void BoxSheet::Interrupt(int side, int x, int y, const OuterSize& size) {
    const int thickness = style_.Thickness;
    const bool level = side % 2 == 0;
    const int length = level ? size.Width : size.Height;
    const int last = std::max(thickness, length - thickness - style_.BreakLength);
    const auto start = static_cast<int>(dice_.Between(thickness, last + 1));
    const int across = side == 1 ? size.Width - thickness : size.Height - thickness;
    if (level)
        Whiten(page_, x + start, side == 0 ? y : y + across, style_.BreakLength, thickness);
    else
        Whiten(page_, side == 3 ? x : x + across, y + start, thickness, style_.BreakLength);
}

// As large as exams have it: half of the box's height.
void BoxSheet::PrintInside(int x, int y, const OuterSize& size) {
    const std::string_view signs = style_.Print == BoxPrint::Letters ? "ABCDE" : "0123456789";
    const std::string_view sign = signs.substr((truth_.size() - 1) % signs.size(), 1);
    constexpr double capHeight = 0.73;  // of the type size, in this typeface
    const double points = size.Height * 0.5 / capHeight * 72 / page_.Dpi();
    const double width = SansFace().TextWidth(points, page_.Dpi(), sign);
    SansFace().DrawText(page_, {x + (size.Width - width) / 2, y + size.Height * 0.75}, points, sign);
}

void BoxSheet::AddText(int x, int y, double points, std::string_view text) {
    SansFace().DrawText(page_, {static_cast<double>(x), static_cast<double>(y)}, points, text);
}

void BoxSheet::AddRule(int x, int y, int length) {
    page_.FillRect(x, y, length, style_.Thickness);
}

void BoxSheet::AddUprightRule(int x, int y, int length) {
    page_.FillRect(x, y, style_.Thickness, length);
}

void BoxSheet::AddFrame(int x, int y, int width, int height) {
    page_.DrawRect(x, y, width, height, style_.Thickness);
}

imaging::WorkGrid ToGrid(const Canvas& page) {
    constexpr int padding = 32;  // scan lines of the image library are whole words of 32 bits
    imaging::WorkGrid grid(page.Width(), (page.Width() + padding - 1) / padding * padding, page.Height());
    for (int y = 0; y < page.Height(); ++y) {
        for (int x = 0; x < page.Width(); ++x) {
            if (page.At(x, y) < 128)
                grid.SetInk(x, imaging::FlipVertically(page.Height() - 1, y));
        }
    }
    return grid;
}

}  // namespace tavrene::samples
