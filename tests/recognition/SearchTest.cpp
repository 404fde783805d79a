#include <gtest/gtest.h>

#include <map>

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

// Twenty cells of the border of the picture, of which the first row is the lowest, are ink, and four more are
// gaps of one cell.
TEST(OutlineTest, CountsTheInkOfTheBorderAtEveryShiftAndBridgesGapsOfOneCell) {
    constexpr const char* kPicture[] = {"#.#..#.###",  // two gaps of one cell, and one of two
                                        "#...##...#",  // what lies inside does not count
                                        ".........#",  // a gap of one at the left
                                        "#........#",  // from here on gaps of two and three
                                        "..........",  //
                                        "..........",  //
                                        "#.........",  //
                                        "#.#######."};
    for (const auto& [left, low] : {std::pair{5, 9}, {60, 30}, {0, 0}}) {
        imaging::WorkGrid grid(90, 96, 60);
        for (int row = 0; row < 8; ++row) {
            for (int column = 0; column < 10; ++column)
                grid.SetInk(left + column, low + row, kPicture[row][column] == '#');
        }
        const GridRect place{low, left, low + 7, left + 9};
        OutlineNeighbourhood neighbourhood;
        for (const BoxShift& shift : ShiftSpiral()) {
            if (shift.dx > left || shift.dy > low)
                continue;
            const GridRect nominal = Shifted(place, -shift.dx, -shift.dy);
            neighbourhood.CopyOutline(grid, nominal);
            ASSERT_EQ(neighbourhood.CountOutline(Shifted(nominal, shift.dx, shift.dy)), 24)
                << left << " " << low << " shifted by " << shift.dx << "," << shift.dy;
        }
        neighbourhood.CopyOutline(grid, place);
        EXPECT_EQ(neighbourhood.CountOutline({low + 3, left, low + 3, left + 9}), 2) << "a line";
        EXPECT_EQ(neighbourhood.CountOutline({low + 7, left + 9, low, left}), 0) << "swapped";
        EXPECT_EQ(neighbourhood.CountOutline({low + 1, left + 4, low + 1, left + 5}), 2) << "two cells";
    }
}

}  // namespace
}  // namespace tavrene::recognition
