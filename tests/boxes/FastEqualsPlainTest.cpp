#include <gtest/gtest.h>

#include <array>

#include "boxes/BoxAssembly.h"
#include "boxes/BoxPages.h"
#include "boxes/LineScan.h"
#include "boxes/PlainBoxFinding.h"
#include "boxes/ProfileImagePipeline.h"
#include "boxes/SegmentCleanup.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxSizes;
using imaging::WorkGrid;
using samples::Random;

struct StepPair {
    const char* Name;
    void (*Plain)(BoxAnalysis&);
};

constexpr std::array kPlainSteps = {StepPair{"first gap closing", plain::CloseGapsAndMarkRows},
                                    StepPair{"masking", plain::MaskLongLines},
                                    StepPair{"second gap closing", plain::CloseGapsAndMarkRows},
                                    StepPair{"line finding", plain::FindLines},
                                    StepPair{"first crossings", plain::FindIntersections},
                                    StepPair{"overshoots", plain::TruncateLineOvershoots},
                                    StepPair{"second crossings", plain::FindIntersections},
                                    StepPair{"grouping", plain::GroupParallelLines},
                                    StepPair{"best of a group", plain::KeepBestParallel},
                                    StepPair{"third crossings", plain::FindIntersections},
                                    StepPair{"restoring", plain::RestoreLongLines},
                                    StepPair{"assembly", plain::IdentifyBoxes}};

void ExpectSame(const BoxAnalysis& fast, const BoxAnalysis& slow) {
    EXPECT_TRUE(fast.WorkGrid == slow.WorkGrid);
    EXPECT_TRUE(fast.SaveGrid == slow.SaveGrid);
    EXPECT_TRUE(fast.RowSkip == slow.RowSkip);
    EXPECT_TRUE(fast.ColSkip == slow.ColSkip);
    EXPECT_TRUE(fast.Segments == slow.Segments);
    EXPECT_TRUE(fast.LongLines == slow.LongLines);
    EXPECT_TRUE(fast.Groups == slow.Groups);
    EXPECT_TRUE(fast.Boxes == slow.Boxes);
}

// Runs both forms side by side and compares the whole state after every step. Returns the segments that were
// found, so that a caller can tell that there was something to compare.
std::size_t RunBoth(const WorkGrid& page, const BoxSizes& sizes) {
    BoxAnalysis fast(page.Clone(), sizes, boxes::ReachFor(sizes));
    BoxAnalysis slow(page.Clone(), sizes, boxes::ReachFor(sizes));
    const std::vector<boxes::PipelineStep>& steps = boxes::PipelineSteps();
    std::size_t segments = 0;
    for (std::size_t number = 0; number < kPlainSteps.size(); ++number) {
        number < steps.size() ? steps[number].Run(fast) : boxes::IdentifyBoxes(fast);
        kPlainSteps[number].Plain(slow);
        SCOPED_TRACE(kPlainSteps[number].Name);
        ExpectSame(fast, slow);
        if (::testing::Test::HasFailure())
            break;
        segments = std::max(segments, fast.Segments.size());
    }
    return segments;
}

// Strokes and boxes of random place and size, some of them just out of true, over random dirt.
WorkGrid RandomPage(Random& dice, const BoxSizes& sizes) {
    const auto pick = [&](int low, int high) { return static_cast<int>(dice.Between(low, high + 1)); };
    const int width = pick(1, 330);
    WorkGrid grid(width, (width + 31) / 32 * 32, pick(1, 330));
    const auto set = [&](int column, int row) {
        if (column >= 0 && row >= 0 && column < grid.Columns() && row < grid.Rows())
            grid.SetInk(column, row);
    };
    for (int stroke = pick(0, 160); stroke > 0; --stroke) {
        const int x = pick(0, grid.Width());
        const int y = dice.Chance(0.2) ? x + pick(-2, 2) : pick(0, grid.Rows());
        const int w = pick(sizes.BoxMinWidth - 5, sizes.BoxMaxWidth + 6);
        const int h = pick(sizes.BoxMinHeight - 5, sizes.BoxMaxHeight + 6);
        const int thickness = pick(1, 3);
        for (int layer = 0; layer < thickness; ++layer) {
            for (int along = 0; along < w; ++along) {
                set(x + along, y + layer);
                set(x + along + pick(0, 1), y + h - layer);
            }
            for (int along = 0; along < h && stroke % 3 != 0; ++along) {
                set(x + layer, y + along);
                set(x + w - layer - 1, y + along);
            }
        }
    }
    const double dirt = dice.Chance(0.3) ? 0.3 : dice.Between(0, 0.02);
    for (int row = 0; row < grid.Rows(); ++row) {
        // Padding columns may hold anything.
        for (int column = 0; column < grid.Columns(); ++column) {
            if (dice.Chance(dirt))
                grid.SetInk(column, row, !grid.IsInk(column, row));
        }
    }
    return grid;
}

TEST(FastEqualsPlain, OnRandomGrids) {
    Random dice(20240305);
    std::size_t segments = 0;
    for (int round = 0; round < 70 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        BoxSizes sizes{10, 24, 10, 20};
        if (round % 3 == 1)
            sizes = {16, 38, 16, 34};
        if (round % 10 == 9)
            sizes = {static_cast<std::int16_t>(dice.Between(0, 12)),
                     static_cast<std::int16_t>(dice.Between(5, 60)),
                     static_cast<std::int16_t>(dice.Between(0, 12)),
                     static_cast<std::int16_t>(dice.Between(5, 60))};
        const WorkGrid page = RandomPage(dice, sizes);
        segments += RunBoth(page, sizes);
    }
    EXPECT_GT(segments, 3000U);
}

TEST(FastEqualsPlain, OnPaintedPages) {
    std::size_t compared = 0;
    int number = 0;
    for (const samples::BoxPagePlan& plan : samples::PlanPages(61)) {
        // The plain form takes a second a page.
        if (plan.Dpi > 150 || ++number % 4 != 0 || HasFailure())
            continue;
        SCOPED_TRACE(plan.Name());
        const samples::BoxPage page = samples::PaintPage(plan);
        EXPECT_GT(RunBoth(page.Grid, page.Sizes), 20U);
        ++compared;
    }
    EXPECT_GT(compared, 8U);
}

}  // namespace
}  // namespace tavrene::test
