#include "recognition/precise/PreciseMark.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "imaging/BitCount.h"
#include "recognition/precise/FormMatch.h"

namespace tavrene::recognition::precise {
namespace {

constexpr int kBorder = 4;
constexpr double kLeastBeside = 0.3;  // of the area that is counted
constexpr double kFineDpi = 300;

}  // namespace

double FillInside(const BitPlane& pixels, const GridRect& place, int border) {
    const std::int64_t width = std::int64_t{place.col1} - place.col0 + 1 - std::int64_t{2} * border;
    const std::int64_t height = std::int64_t{place.row1} - place.row0 + 1 - std::int64_t{2} * border;
    if (width <= 0 || height <= 0)
        return 0;
    const int first = std::max(0, place.col0 + border);
    const int last = std::min(pixels.Width() - 1, place.col1 - border);
    const int lastRow = std::min(pixels.Height() - 1, place.row1 - border);
    std::int64_t ink = 0;
    for (int row = std::max(0, place.row0 + border); row <= lastRow && first <= last; ++row)
        ink += imaging::CountBits({pixels.Row(row), static_cast<std::size_t>(pixels.Words())}, first, last);
    return static_cast<double>(ink * 100) / static_cast<double>(width * height);
}

std::optional<double> FillBeside(const BitPlane& pixels, const GridRect& place, int border,
                                 const BitPlane& letter, bool turned) {
    const int width = place.col1 - place.col0 + 1;
    const int height = place.row1 - place.row0 + 1;
    int ink = 0;
    int area = 0;
    for (int row = border; row < height - border; ++row) {
        for (int column = border; column < width - border; ++column) {
            const int across = (turned ? width - 1 - column : column) * letter.Width() / width;
            const int up = (turned ? height - 1 - row : row) * letter.Height() / height;
            if (letter.Has(across, up))
                continue;
            ++area;
            if (pixels.Has(place.col0 + column, place.row0 + row))
                ++ink;
        }
    }
    const int whole = (width - 2 * border) * (height - 2 * border);
    if (area <= 0 || area < kLeastBeside * whole)
        return std::nullopt;
    return 100.0 * ink / area;
}

int BorderOf(const imaging::Page& page, const profiles::ProfileRecord& profile) {
    return std::max(kBorder, static_cast<int>(std::lround(kBorder * DpiOf(page, profile) / kFineDpi)));
}

double TypicalBox(const profiles::ProfileRecord& profile, const FormScale& scale) {
    std::vector<double> sides;
    for (const profiles::PrintedBox& box : profile.Boxes)
        sides.push_back(std::min((box.R - box.L) * static_cast<double>(scale.sx),
                                 (box.lower - box.upper) * static_cast<double>(scale.sy)));
    if (sides.empty())
        return 0;
    const auto middle = sides.begin() + static_cast<std::ptrdiff_t>(sides.size() / 2);
    std::nth_element(sides.begin(), middle, sides.end());
    return *middle;
}

}  // namespace tavrene::recognition::precise
