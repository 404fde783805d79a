#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "recognition/Outline.h"
#include "recognition/SampleBoxes.h"
#include "recognition/ShiftSpiral.h"

namespace tavrene::recognition {
namespace {

std::vector<std::pair<int, int>> Walk(int from, int to) {
    std::vector<std::pair<int, int>> steps;
    for (int k = from; k < to; ++k)
        steps.emplace_back(ShiftSpiral()[static_cast<std::size_t>(k)].dx,
                           ShiftSpiral()[static_cast<std::size_t>(k)].dy);
    return steps;
}

TEST(ShiftSpiralTest, WalksRingAfterRingAndTriesEachStartTwice) {
    const std::vector<std::pair<int, int>> inner = {{0, 0}, {-1, 0}, {-1, 1}, {0, 1},   {1, 1},
                                                    {1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}};
    EXPECT_EQ(Walk(0, 10), inner);
    const std::vector<std::pair<int, int>> second = {{-2, 0}, {-2, 1},  {-2, 2},  {-1, 2},  {0, 2},  {1, 2},
                                                     {2, 2},  {2, 1},   {2, 0},   {2, -1},  {2, -2}, {1, -2},
                                                     {0, -2}, {-1, -2}, {-2, -2}, {-2, -1}, {-2, 0}};
    EXPECT_EQ(Walk(10, 27), second);

    std::map<std::pair<int, int>, int> visits;
    for (const auto& step : Walk(0, static_cast<int>(ShiftSpiral().size())))
        ++visits[step];
    EXPECT_EQ(visits.size(), 51U * 51U);
    for (const auto& [step, count] : visits)
        EXPECT_EQ(count, step.second == 0 && step.first < 0 ? 2 : 1) << step.first << "," << step.second;
}

TEST(SampleBoxesTest, TakesAboutElevenFromTheFirstOn) {
    using Indices = std::vector<std::size_t>;
    EXPECT_EQ(SampleBoxes(0), Indices());
    EXPECT_EQ(SampleBoxes(1), Indices({0}));
    EXPECT_EQ(SampleBoxes(2), Indices({0, 1}));
    EXPECT_EQ(SampleBoxes(11), Indices({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(SampleBoxes(12).size(), 12U);  // a step of 1.1
    EXPECT_EQ(SampleBoxes(16).size(), 8U);   // a step of 1.5 goes to the even 2
    EXPECT_EQ(SampleBoxes(25), Indices({0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24}));
    EXPECT_EQ(SampleBoxes(26).size(), 13U);  // a step of 2.5 goes to the even 2
}

// The counting as it is told step by step: collect the inked border cells, bridge the gaps, count.
std::size_t PlainCount(const imaging::WorkGrid& grid, const GridRect& rect) {
    const std::set<int> rows = {rect.row0, rect.row1};
    const std::set<int> columns = {rect.col0, rect.col1};
    std::set<std::pair<int, int>> ink;
    for (int r = rect.row0; r <= rect.row1; ++r) {
        for (int c = rect.col0; c <= rect.col1; ++c) {
            if ((rows.contains(r) || columns.contains(c)) && grid.IsInk(c, r))
                ink.emplace(r, c);
        }
    }
    for (const int r : rows) {
        for (int c = rect.col0; c <= rect.col1 - 2; ++c) {
            if (ink.contains({r, c}) && ink.contains({r, c + 2}))
                ink.emplace(r, c + 1);
        }
    }
    for (const int c : columns) {
        for (int r = rect.row0; r <= rect.row1 - 2; ++r) {
            if (ink.contains({r, c}) && ink.contains({r + 2, c}))
                ink.emplace(r + 1, c);
        }
    }
    return ink.size();
}

TEST(OutlineTest, RunningSumsCountWhatTheStepsCountAtEveryShift) {
    std::mt19937 random(20240305);
    const auto upTo = [&random](int last) {
        return static_cast<int>(random() % static_cast<unsigned>(last + 1));
    };
    OutlineNeighbourhood neighbourhood;
    for (int round = 0; round < 60; ++round) {
        imaging::WorkGrid grid(70, 96, 60);
        const int density = 1 + upTo(8);
        for (int row = 0; row < 60; ++row) {
            for (int column = 0; column < 96; ++column)
                grid.SetInk(column, row, upTo(9) < density);
        }
        // Also flat, swapped and far-out rectangles, and ones that the clamping at 0 squeezes.
        const int row0 = upTo(60) - upTo(12);
        const int col0 = upTo(100);
        const GridRect nominal{std::max(0, row0), col0, std::max(0, row0 + upTo(20) - 2),
                               col0 + upTo(22) - 2};
        neighbourhood.CopyOutline(grid, nominal);
        for (int step = 0; step < 60; ++step) {
            const BoxShift shift =
                ShiftSpiral()[static_cast<std::size_t>(upTo(static_cast<int>(ShiftSpiral().size()) - 1))];
            const GridRect rect = Shifted(nominal, shift.dx, shift.dy);
            ASSERT_EQ(neighbourhood.CountOutline(rect), static_cast<int>(PlainCount(grid, rect)))
                << "round " << round << " rows " << rect.row0 << ".." << rect.row1 << " columns " << rect.col0
                << ".." << rect.col1;
        }
    }
}

}  // namespace
}  // namespace tavrene::recognition
