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

// The counting as it is told step by step: copy the border cells into an empty region, bridge the gaps,
// count.
class PlainOutline {
  public:
    PlainOutline(const imaging::WorkGrid& grid, const GridRect& rect)
        : rows_(rect.row1 - rect.row0), cols_(rect.col1 - rect.col0) {
        for (int c = rect.col0; c <= rect.col1; c += std::max(1, cols_)) {
            for (int r = rect.row0; r <= rect.row1; ++r)
                Copy(grid, rect, r, c);
        }
        for (int r = rect.row0; r <= rect.row1; r += std::max(1, rows_)) {
            for (int c = rect.col0 + 1; c <= rect.col1 - 1; ++c)
                Copy(grid, rect, r, c);
        }
    }

    void BridgeOutlineGaps() {
        for (int r = 0; r <= rows_; r += std::max(1, rows_)) {
            for (int c = 0; c <= cols_ - 2; ++c) {
                if (cells_[{r, c}] && cells_[{r, c + 2}])
                    cells_[{r, c + 1}] = true;
            }
        }
        for (int c = 0; c <= cols_; c += std::max(1, cols_)) {
            for (int r = 0; r <= rows_ - 2; ++r) {
                if (cells_[{r, c}] && cells_[{r + 2, c}])
                    cells_[{r + 1, c}] = true;
            }
        }
    }

    int CountOutline() {
        int count = 0;
        for (int c = 0; c <= cols_; c += std::max(1, cols_)) {
            for (int r = 0; r <= rows_; ++r)
                count += cells_[{r, c}] ? 1 : 0;
        }
        for (int r = 0; r <= rows_; r += std::max(1, rows_)) {
            for (int c = 1; c <= cols_ - 1; ++c)
                count += cells_[{r, c}] ? 1 : 0;
        }
        return count;
    }

  private:
    void Copy(const imaging::WorkGrid& grid, const GridRect& rect, int r, int c) {
        cells_[{r - rect.row0, c - rect.col0}] = grid.IsInk(c, r);
    }

    int rows_;
    int cols_;
    std::map<std::pair<int, int>, bool> cells_;
};

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
            PlainOutline plain(grid, rect);
            plain.BridgeOutlineGaps();
            ASSERT_EQ(neighbourhood.CountOutline(rect), plain.CountOutline())
                << "round " << round << " rows " << rect.row0 << ".." << rect.row1 << " columns " << rect.col0
                << ".." << rect.col1;
        }
    }
}

}  // namespace
}  // namespace tavrene::recognition
