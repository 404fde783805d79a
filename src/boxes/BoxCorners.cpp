#include "boxes/BoxCorners.h"

#include <cstdlib>

namespace tavrene::boxes {
namespace {

constexpr std::size_t kSidesPerBox = 4;

// The line that is kept of a thick edge may be its inner or its outer one, and its end may stop short at a
// worn corner: together two pixels.
bool Near(int a, int b) {
    return std::abs(a - b) <= 2;
}

bool Near(GridPoint a, GridPoint b, int reach) {
    return std::abs(a.X - b.X) <= reach && std::abs(a.Y - b.Y) <= reach;
}

GridPoint StartOf(const LineSeg& segment) {
    return {segment.L, segment.T};
}

GridPoint EndOf(const LineSeg& segment) {
    return {segment.R, segment.B};
}

GridPoint FarEnd(const LineSeg& side, const LineSeg& segment) {
    const GridPoint start = StartOf(side);
    const bool startIsShared = Near(start, StartOf(segment), 2) || Near(start, EndOf(segment), 2);
    return startIsShared ? EndOf(side) : start;
}

using SideNumbers = std::vector<std::size_t>;

// The first four segments of each box number, in list order.
std::vector<SideNumbers> GatherSides(const std::vector<LineSeg>& segments, int numbers) {
    std::vector<SideNumbers> sides(static_cast<std::size_t>(numbers));
    for (std::size_t index = 0; index < segments.size(); ++index) {
        if (segments[index].BoxId < 0)
            continue;
        SideNumbers& ofBox = sides[static_cast<std::size_t>(segments[index].BoxId)];
        if (ofBox.size() < kSidesPerBox)
            ofBox.push_back(index);
    }
    return sides;
}

// The corner points are all meetings of a vertical with a horizontal side. Among them the lowest row wins,
// and on it the lowest column; and the reverse for the upper corner.
BoxRect RectangleOf(const std::vector<LineSeg>& segments, const SideNumbers& sides, int width) {
    BoxRect box;
    bool first = true;
    int lowest = 0;
    int highest = 0;
    for (const std::size_t upright : sides) {
        for (const std::size_t level : sides) {
            if (!segments[upright].IsVertical() || segments[level].IsVertical())
                continue;
            const std::int16_t column = segments[upright].L;
            const std::int16_t row = segments[level].T;
            const int key = row * width + column;
            if (first || key < lowest) {
                lowest = key;
                box.L = column;
                box.T = row;
            }
            if (first || key > highest) {
                highest = key;
                box.R = column;
                box.B = row;
            }
            first = false;
        }
    }
    return box;
}

bool ReachesSmallestSize(const BoxRect& box, const BoxSizes& sizes) {
    return std::abs(box.R - box.L) >= sizes.BoxMinWidth && std::abs(box.B - box.T) >= sizes.BoxMinHeight;
}

}  // namespace

bool ShareCorner(const LineSeg& segment, const LineSeg& other) {
    return (Near(segment.L, other.L) && Near(segment.T, other.T)) ||
           (Near(segment.R, other.R) && Near(segment.B, other.B)) ||
           (Near(segment.L, other.R) && Near(segment.T, other.B)) ||
           (Near(segment.R, other.L) && Near(segment.B, other.T));
}

ExpectedSide ExpectFourthSide(const LineSeg& segment, const LineSeg& a, const LineSeg& b) {
    return {FarEnd(a, segment), FarEnd(b, segment)};
}

bool RunsBetween(const LineSeg& side, const ExpectedSide& expected) {
    const GridPoint start = StartOf(side);
    const GridPoint end = EndOf(side);
    return (Near(start, expected.FarA, kEndReach) && Near(end, expected.FarB, kEndReach)) ||
           (Near(start, expected.FarB, kEndReach) && Near(end, expected.FarA, kEndReach));
}

std::vector<RuledBox> BuildRectangles(BoxAnalysis& analysis, int numbers) {
    std::vector<RuledBox> boxes;
    for (const SideNumbers& sides : GatherSides(analysis.Segments, numbers)) {
        if (sides.size() < kSidesPerBox) {
            for (const std::size_t number : sides)
                analysis.Segments[number].BoxId = -1;
            continue;
        }
        const BoxRect box = RectangleOf(analysis.Segments, sides, analysis.WorkGrid.Width());
        if (ReachesSmallestSize(box, analysis.Sizes))
            boxes.push_back({box, LookAtOutline(analysis.SaveGrid, box)});
    }
    return boxes;
}

}  // namespace tavrene::boxes
