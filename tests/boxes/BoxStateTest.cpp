#include <gtest/gtest.h>

#include <array>
#include <concepts>
#include <cstdint>

#include "boxes/BoxAssembly.h"
#include "boxes/BoxPages.h"
#include "boxes/ProfileImagePipeline.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxSizes;
using imaging::WorkGrid;
using samples::Random;

// One number for everything that went in; any other bit gives another number.
class Digest {
  public:
    std::uint64_t Value() const { return value_; }

    void Add(const BoxAnalysis& analysis) {
        AddAll(analysis.RowSkip);
        AddAll(analysis.ColSkip);
        AddAll(analysis.Segments);
        AddAll(analysis.LongLines);
        AddAll(analysis.Groups);
        AddAll(analysis.Boxes);
        for (const WorkGrid* grid : {&analysis.WorkGrid, &analysis.SaveGrid}) {
            for (int row = 0; row < grid->Rows(); ++row)
                AddAll(grid->Row(row));
        }
    }

  private:
    template <std::integral Number>
    void Add(Number number) {
        value_ = (value_ ^ static_cast<std::uint64_t>(number)) * 0x100000001B3U;
    }
    void Add(const boxes::LineSeg& s) {
        AddAll(std::array{s.L, s.T, s.R, s.B, static_cast<std::int16_t>(s.Orientation), s.BoxId, s.Link,
                          s.CornerHits, s.SourceIndex, s.Length});
        AddAll(s.Crossings);
    }
    void Add(const boxes::LineGroup& group) {
        AddAll(group.Members);
        AddAll(std::array{group.MinX, group.MaxX, group.MinY, group.MaxY});
    }
    void Add(const boxes::BoxRect& box) {
        AddAll(std::array{box.L, box.T, box.R, box.B, box.Kind, box.Mark, box.Valid});
    }
    template <typename List>
    void AddAll(const List& list) {
        Add(std::size(list));
        for (const auto& item : list)
            Add(item);
    }

    std::uint64_t value_ = 0xCBF29CE484222325U;
};

struct StepState {
    const char* Name;
    std::uint64_t Digest;
};

// What plain loops over all pixels, all pairs of segments and all groups came to on the same pages.
constexpr std::array kStates = {
    StepState{"first gap closing", 0xB972B71E600D5395U},  StepState{"masking", 0xCD660B06621C622DU},
    StepState{"second gap closing", 0x951B0DD3E14818BCU}, StepState{"line finding", 0x6CEF21142517E298U},
    StepState{"first crossings", 0x7738A64ADDF7658AU},    StepState{"overshoots", 0x7905EE3583965545U},
    StepState{"second crossings", 0xD0CA1A6B2F748ADFU},   StepState{"grouping", 0x91055F2930DBC11EU},
    StepState{"best of a group", 0x3251A87E4865CAE7U},    StepState{"third crossings", 0x4A54555F960A1C2BU},
    StepState{"restoring", 0xE6612189734C31E4U},          StepState{"assembly", 0xBB74C4DA75C943AEU}};

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

BoxSizes SizesOfRound(Random& dice, int round) {
    const auto pick = [&dice](int low, int high) {
        return static_cast<std::int16_t>(dice.Between(low, high));
    };
    if (round % 10 == 9)
        return {pick(0, 12), pick(5, 60), pick(0, 12), pick(5, 60)};
    return round % 3 == 1 ? BoxSizes{16, 38, 16, 34} : BoxSizes{10, 24, 10, 20};
}

TEST(BoxState, EveryStepLeavesWhatThePlainLoopsLeft) {
    Random dice(20240305);
    std::array<Digest, kStates.size()> states;
    for (int round = 0; round < 70; ++round) {
        const BoxSizes sizes = SizesOfRound(dice, round);
        BoxAnalysis analysis(RandomPage(dice, sizes), sizes, boxes::ReachFor(sizes));
        std::size_t number = 0;
        for (const boxes::PipelineStep& step : boxes::PipelineSteps()) {
            step.Run(analysis);
            states.at(number++).Add(analysis);
        }
        boxes::IdentifyBoxes(analysis);
        states.at(number).Add(analysis);
    }
    for (std::size_t number = 0; number < kStates.size(); ++number)
        EXPECT_EQ(states[number].Value(), kStates[number].Digest) << kStates[number].Name;
}

}  // namespace
}  // namespace tavrene::test
