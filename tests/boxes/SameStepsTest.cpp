#include <gtest/gtest.h>

#include <array>

#include "boxes/BoxAssembly.h"
#include "boxes/BoxPages.h"
#include "boxes/ProfileImagePipeline.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxSizes;
using boxes::LineSeg;
using imaging::WorkGrid;
using samples::Random;

// All that a step leaves, folded into one number in the way of FNV-1a.
class Digest {
  public:
    void Take(std::uint64_t value) { value_ = (value_ ^ value) * 1'099'511'628'211U; }
    void Take(const WorkGrid& grid) {
        for (int row = 0; row < grid.Rows(); ++row)
            for (const WorkGrid::Word word : grid.Row(row))
                Take(word);
    }
    void Take(const std::vector<bool>& marks) {
        for (const bool mark : marks)
            Take(std::uint64_t{mark});
    }
    void Take(std::initializer_list<std::int16_t> numbers) {
        for (const std::int16_t number : numbers)
            Take(static_cast<std::uint64_t>(number));
    }
    void Take(const std::vector<LineSeg>& segments) {
        for (const LineSeg& s : segments) {
            Take({static_cast<std::int16_t>(s.Orientation), s.L, s.T, s.R, s.B, s.BoxId, s.Link, s.CornerHits,
                  s.SourceIndex, s.Length});
            for (const std::int16_t crossing : s.Crossings)
                Take({crossing});
        }
    }
    void Take(const BoxAnalysis& analysis) {
        Take(analysis.WorkGrid);
        Take(analysis.SaveGrid);
        Take(analysis.RowSkip);
        Take(analysis.ColSkip);
        Take(analysis.Segments);
        Take(analysis.LongLines);
        for (const boxes::LineGroup& group : analysis.Groups) {
            Take(group.Members);
            Take({group.MinX, group.MaxX, group.MinY, group.MaxY});
        }
    }
    std::uint64_t Value() const { return value_; }

  private:
    std::uint64_t value_ = 14'695'981'039'346'656'037U;
};

struct Step {
    const char* Name;
    std::uint64_t Left;
};

// What each step left of the pages below when a slow and independent writing of the rules still stood beside
// it and left the same. A form must have the same boxes in every version, however fast they are found.
constexpr std::array kSteps = {
    Step{"first gap closing", 11300322303905927191U},  Step{"masking", 9445193344461780504U},
    Step{"second gap closing", 16233042086757346593U}, Step{"line finding", 1019594045200698247U},
    Step{"first crossings", 9534689322524291339U},     Step{"overshoots", 10756511606429632254U},
    Step{"second crossings", 15555517737294446463U},   Step{"grouping", 10514048420444869864U},
    Step{"best of a group", 9446378928068516452U},     Step{"third crossings", 12829538296952259104U},
    Step{"restoring", 13657955223125329565U},          Step{"assembly", 13759656730008785441U}};

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

struct Page {
    WorkGrid Grid;
    BoxSizes Sizes;
};

std::vector<Page> Pages() {
    std::vector<Page> pages;
    Random dice(20240305);
    for (int round = 0; round < 70; ++round) {
        BoxSizes sizes{10, 24, 10, 20};
        if (round % 3 == 1)
            sizes = {16, 38, 16, 34};
        if (round % 10 == 9)
            sizes = {static_cast<std::int16_t>(dice.Between(0, 12)),
                     static_cast<std::int16_t>(dice.Between(5, 60)),
                     static_cast<std::int16_t>(dice.Between(0, 12)),
                     static_cast<std::int16_t>(dice.Between(5, 60))};
        pages.push_back({RandomPage(dice, sizes), sizes});
    }
    int number = 0;
    for (const samples::BoxPagePlan& plan : samples::PlanPages(61)) {
        if (plan.Dpi > 150 || ++number % 4 != 0)
            continue;
        samples::BoxPage page = samples::PaintPage(plan);
        pages.push_back({std::move(page.Grid), page.Sizes});
    }
    return pages;
}

TEST(SameSteps, EveryStepLeavesWhatItAlwaysLeft) {
    std::array<Digest, kSteps.size()> digests;
    const std::vector<boxes::PipelineStep>& steps = boxes::PipelineSteps();
    ASSERT_EQ(steps.size() + 1, kSteps.size());
    for (const Page& page : Pages()) {
        BoxAnalysis analysis(page.Grid.Clone(), page.Sizes, boxes::ReachFor(page.Sizes));
        for (std::size_t number = 0; number < kSteps.size(); ++number) {
            number < steps.size() ? steps[number].Run(analysis) : boxes::IdentifyBoxes(analysis);
            digests[number].Take(analysis);
        }
    }
    for (std::size_t number = 0; number < kSteps.size(); ++number)
        EXPECT_EQ(digests[number].Value(), kSteps[number].Left) << kSteps[number].Name;
}

}  // namespace
}  // namespace tavrene::test
