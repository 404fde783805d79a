#include <gtest/gtest.h>

#include "boxes/LineScan.h"
#include "boxes/SegmentCleanup.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxSizes;
using boxes::LineSeg;
using boxes::Orientation;
using imaging::WorkGrid;

constexpr BoxSizes kSizes{20, 40, 20, 40};

BoxAnalysis AnalysisOf(WorkGrid grid) {
    return {std::move(grid), kSizes, boxes::ReachFor(kSizes)};
}

LineSeg Line(Orientation orientation, int left, int bottom, int right, int top) {
    LineSeg segment;
    segment.Orientation = orientation;
    segment.L = static_cast<std::int16_t>(left);
    segment.T = static_cast<std::int16_t>(bottom);
    segment.R = static_cast<std::int16_t>(right);
    segment.B = static_cast<std::int16_t>(top);
    segment.Length = static_cast<std::int16_t>(right - left + top - bottom);
    return segment;
}

// The lengths that the sizes 20 to 40 tell apart: a side has 17 to 40 pixels, a long line 44 or more.
TEST(FindLines, TakesRunsThatFitTheBoxSizesAndErasesLongOnes) {
    WorkGrid grid(200, 224, 200);
    const int lengths[] = {16, 17, 40, 41, 43, 44};
    for (int index = 0; index < 6; ++index) {
        for (int along = 0; along < lengths[index]; ++along) {
            grid.SetInk(5 + along, 10 + 10 * index);
            grid.SetInk(100 + 10 * index, 100 + along);
        }
    }
    BoxAnalysis analysis = AnalysisOf(std::move(grid));
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::MaskLongLines(analysis);
    EXPECT_EQ(analysis.LongLines, (std::vector<LineSeg>{Line(Orientation::Horizontal, 5, 60, 49, 60),
                                                        Line(Orientation::Vertical, 150, 100, 150, 144)}));
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::FindLines(analysis);
    EXPECT_EQ(analysis.Segments, (std::vector<LineSeg>{Line(Orientation::Horizontal, 5, 20, 22, 20),
                                                       Line(Orientation::Horizontal, 5, 30, 45, 30),
                                                       Line(Orientation::Vertical, 110, 100, 110, 117),
                                                       Line(Orientation::Vertical, 120, 100, 120, 140)}));
    boxes::RestoreLongLines(analysis);
    EXPECT_FALSE(analysis.WorkGrid.IsInk(48, 60));
    EXPECT_TRUE(analysis.SaveGrid.IsInk(49, 60)) << "the pixel behind a long line is painted as well";
}

}  // namespace
}  // namespace tavrene::test
