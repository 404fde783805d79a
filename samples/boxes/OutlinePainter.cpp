#include "boxes/OutlinePainter.h"

#include <algorithm>
#include <cmath>

namespace tavrene::samples {
namespace {

// Whether the middle of a pixel lies in a rectangle from (0, 0) whose corners are rounded.
bool IsInRounded(double x, double y, const OuterSize& size, double radius) {
    if (x < 0 || y < 0 || x > size.Width || y > size.Height)
        return false;
    const double awayX = std::max({radius - x, x - (size.Width - radius), 0.0});
    const double awayY = std::max({radius - y, y - (size.Height - radius), 0.0});
    return awayX * awayX + awayY * awayY <= radius * radius;
}

void PaintRounded(Canvas& page, const PixelPlace& place, const OuterSize& size, const OutlineStyle& style) {
    const int inset = style.Thickness;
    const OuterSize inner{size.Width - 2 * inset, size.Height - 2 * inset};
    const int innerRadius = std::max(style.Radius - inset, 0);
    for (int y = 0; y < size.Height; ++y) {
        for (int x = 0; x < size.Width; ++x) {
            if (IsInRounded(x + 0.5, y + 0.5, size, style.Radius) &&
                !IsInRounded(x + 0.5 - inset, y + 0.5 - inset, inner, innerRadius))
                page.Set(place.X + x, place.Y + y, kBlack);
        }
    }
}

void ClearCorners(Canvas& page, const PixelPlace& place, const OuterSize& size, int gap) {
    for (int y = 0; y < gap; ++y) {
        for (int x = 0; x < gap; ++x) {
            for (const int column : {place.X + x, place.X + size.Width - 1 - x}) {
                page.Set(column, place.Y + y, kWhite);
                page.Set(column, place.Y + size.Height - 1 - y, kWhite);
            }
        }
    }
}

enum class Side { Left, Top, Right, Bottom };

// Adds to one side on its inner face; `reach` tells by how much at a place along it.
template <typename Reach>
void Thicken(Canvas& page, const PixelPlace& place, const OuterSize& size, Side side, Reach reach) {
    const bool upright = side == Side::Left || side == Side::Right;
    const int length = upright ? size.Height : size.Width;
    const int across = upright ? size.Width : size.Height;
    const bool isFar = side == Side::Right || side == Side::Bottom;
    for (int along = 0; along < length; ++along) {
        for (int depth = 0; depth < reach(along); ++depth) {
            const int from = isFar ? across - 1 - depth : depth;
            page.Set(place.X + (upright ? from : along), place.Y + (upright ? along : from), kBlack);
        }
    }
}

void MoveLine(CentreLines& lines, Side side, double inwards) {
    switch (side) {
        case Side::Left:
            lines.Left += inwards;
            return;
        case Side::Top:
            lines.Top += inwards;
            return;
        case Side::Right:
            lines.Right -= inwards;
            return;
        case Side::Bottom:
            lines.Bottom -= inwards;
            return;
    }
}

// Makes one side unlike the others, where the style wants it.
void PaintOddSide(Canvas& page, const PixelPlace& place, const OuterSize& size, const OutlineStyle& style,
                  Side side, CentreLines& lines) {
    const int length = side == Side::Left || side == Side::Right ? size.Height : size.Width;
    Thicken(page, place, size, side, [&](int along) {
        const double share = static_cast<double>(along) / (length - 1);
        return style.Thickness + style.ThickEdge + static_cast<int>(std::lround(share * style.Taper));
    });
    MoveLine(lines, side, style.ThickEdge / 2.0 + style.Taper / 4.0);
}

void PaintShadow(Canvas& page, const PixelPlace& place, const OuterSize& size, int shadow) {
    page.FillRect(place.X + size.Width, place.Y + shadow, shadow, size.Height);
    page.FillRect(place.X + shadow, place.Y + size.Height, size.Width, shadow);
}

}  // namespace

CentreLines PaintOutline(Canvas& page, const PixelPlace& place, const OuterSize& size,
                         const OutlineStyle& style, Random& dice) {
    const double inset = (style.Thickness - 1) / 2.0;
    CentreLines lines{place.X + inset, place.Y + inset, place.X + size.Width - 1 - inset,
                      place.Y + size.Height - 1 - inset};
    if (style.Radius > 0)
        PaintRounded(page, place, size, style);
    else
        page.DrawRect(place.X, place.Y, size.Width, size.Height, style.Thickness);
    if (style.ThickEdge > 0 || style.Taper > 0)
        PaintOddSide(page, place, size, style, static_cast<Side>(static_cast<int>(dice.Between(0, 4))),
                     lines);
    if (style.Shadow > 0)
        PaintShadow(page, place, size, style.Shadow);
    ClearCorners(page, place, size, style.CornerGap);
    return lines;
}

}  // namespace tavrene::samples
