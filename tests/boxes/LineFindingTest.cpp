#include <gtest/gtest.h>

#include <string>

#include "boxes/LineScan.h"
#include "boxes/SegmentCleanup.h"
#include "support/PictureRows.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxSizes;
using boxes::LineSeg;
using boxes::Orientation;
using imaging::WorkGrid;

constexpr BoxSizes kSizes{20, 40, 20, 40};

BoxAnalysis AnalysisOf(WorkGrid grid, const BoxSizes& sizes = kSizes) {
    return {std::move(grid), sizes, boxes::ReachFor(sizes)};
}

WorkGrid BlankGrid(int width = 200, int rows = 200) {
    return {width, (width + 31) / 32 * 32, rows};
}

void DrawAcross(WorkGrid& grid, int row, int column, int length) {
    for (int along = 0; along < length; ++along)
        grid.SetInk(column + along, row);
}

void DrawDown(WorkGrid& grid, int column, int row, int length) {
    for (int along = 0; along < length; ++along)
        grid.SetInk(column, row + along);
}

LineSeg Across(int row, int left, int right) {
    LineSeg segment;
    segment.L = static_cast<std::int16_t>(left);
    segment.R = static_cast<std::int16_t>(right);
    segment.T = segment.B = static_cast<std::int16_t>(row);
    segment.Length = static_cast<std::int16_t>(right - left);
    return segment;
}

LineSeg Down(int column, int bottom, int top) {
    LineSeg segment;
    segment.Orientation = Orientation::Vertical;
    segment.L = segment.R = static_cast<std::int16_t>(column);
    segment.T = static_cast<std::int16_t>(bottom);
    segment.B = static_cast<std::int16_t>(top);
    segment.Length = static_cast<std::int16_t>(top - bottom);
    return segment;
}

TEST(GapClosing, FillsSinglePixelsOnlyAndNotAtTheFarEdge) {
    BoxAnalysis analysis =
        AnalysisOf(GridOf({"#.#..#.#.#", "..........", "#.........", "..........", "#........#"}));
    boxes::CloseGapsAndMarkRows(analysis);
    EXPECT_TRUE(analysis.WorkGrid ==
                GridOf({"###..#####", "#.........", "#.........", "#.........", "#........#"}));
}

TEST(GapClosing, SkipsRowsByTheirLongestRunThatHasEnded) {
    WorkGrid grid = BlankGrid();
    DrawAcross(grid, 10, 5, 13);
    DrawAcross(grid, 20, 5, 14);
    DrawAcross(grid, 30, 200 - 60, 60);  // still open at the far edge
    DrawAcross(grid, 40, 200 - 62, 60);  // ends two pixels before it, which is open as well
    DrawAcross(grid, 50, 200 - 63, 60);
    BoxAnalysis analysis = AnalysisOf(std::move(grid));
    boxes::CloseGapsAndMarkRows(analysis);
    EXPECT_TRUE(analysis.RowSkip[10]);
    EXPECT_FALSE(analysis.RowSkip[20]);
    EXPECT_TRUE(analysis.RowSkip[30]);
    EXPECT_TRUE(analysis.RowSkip[40]);
    EXPECT_FALSE(analysis.RowSkip[50]);
    EXPECT_TRUE(analysis.ColSkip[10]);
}

TEST(LongLines, AreErasedWithThePixelBehindThemAndComeBackInTheSavedGrid) {
    WorkGrid grid = BlankGrid();
    DrawAcross(grid, 10, 5, 44);
    DrawAcross(grid, 20, 5, 43);
    DrawDown(grid, 120, 30, 44);
    DrawDown(grid, 49, 10, 8);  // stands on the pixel behind the long line
    const WorkGrid page = grid.Clone();
    BoxAnalysis analysis = AnalysisOf(std::move(grid));
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::MaskLongLines(analysis);
    ASSERT_EQ(analysis.LongLines.size(), 2U);
    EXPECT_EQ(analysis.LongLines[0].R, 50) << "the line runs on over the upright one";
    EXPECT_FALSE(analysis.WorkGrid.IsInk(49, 10));
    EXPECT_TRUE(analysis.WorkGrid.IsInk(49, 11));
    EXPECT_FALSE(analysis.WorkGrid.IsInk(120, 40));
    EXPECT_TRUE(analysis.WorkGrid.IsInk(20, 20)) << "too short for a long line";

    boxes::RestoreLongLines(analysis);
    EXPECT_FALSE(analysis.WorkGrid.IsInk(120, 40));
    WorkGrid expected = page.Clone();
    expected.SetInk(50, 10);
    expected.SetInk(120, 74);
    EXPECT_TRUE(analysis.SaveGrid == expected) << "the pixel behind each line is painted as well";
}

TEST(FindLines, TakesRunsThatFitTheBoxSizes) {
    WorkGrid grid = BlankGrid();
    const int lengths[] = {16, 17, 40, 41, 43};
    for (int index = 0; index < 5; ++index) {
        DrawAcross(grid, 10 + 10 * index, 5, lengths[index]);
        DrawDown(grid, 100 + 10 * index, 100, lengths[index]);
    }
    BoxAnalysis analysis = AnalysisOf(std::move(grid));
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::MaskLongLines(analysis);
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::FindLines(analysis);
    ASSERT_EQ(analysis.Segments.size(), 4U);
    EXPECT_EQ(analysis.Segments[0], Across(20, 5, 22));
    EXPECT_EQ(analysis.Segments[1], Across(30, 5, 45));
    EXPECT_EQ(analysis.Segments[2], Down(110, 100, 117));
    EXPECT_EQ(analysis.Segments[3], Down(120, 100, 140));
}

TEST(FindLines, APageWithoutInkHasNoSegments) {
    BoxAnalysis analysis = AnalysisOf(BlankGrid());
    boxes::CloseGapsAndMarkRows(analysis);
    boxes::FindLines(analysis);
    boxes::FindIntersections(analysis);
    boxes::TruncateLineOvershoots(analysis);
    boxes::GroupParallelLines(analysis);
    boxes::KeepBestParallel(analysis);
    EXPECT_TRUE(analysis.Segments.empty());
}

TEST(Intersections, CornerHitsHoldColumnsAgainstRows) {
    BoxAnalysis analysis = AnalysisOf(BlankGrid());
    analysis.Segments = {Across(50, 50, 70), Across(50, 120, 140), Down(52, 48, 70), Down(120, 50, 70)};
    boxes::FindIntersections(analysis);
    EXPECT_EQ(analysis.Segments[0].CornerHits, 1) << "on the diagonal";
    EXPECT_EQ(analysis.Segments[2].CornerHits, 1);
    EXPECT_EQ(analysis.Segments[1].CornerHits, 0) << "a corner, but off the diagonal";
    EXPECT_EQ(analysis.Segments[3].CornerHits, 0);
    EXPECT_EQ(analysis.Segments[1].Crossings, std::vector<std::int16_t>{120});
    EXPECT_EQ(analysis.Segments[3].Crossings, std::vector<std::int16_t>{50});
}

TEST(Intersections, TheReachesChangePlacesForVerticalSegments) {
    const BoxSizes wide{10, 40, 10, 14};  // half reaches: 23 columns, 10 rows
    BoxAnalysis analysis = AnalysisOf(BlankGrid(), wide);
    analysis.Segments = {Across(100, 20, 56), Down(38, 92, 128)};
    boxes::FindIntersections(analysis);
    EXPECT_EQ(analysis.Segments[0].CrossingCount(), 1);
    EXPECT_EQ(analysis.Segments[1].CrossingCount(), 0) << "18 columns are beyond 10";
}

TEST(Overshoots, EndsMoveBackOverOneOrTwoPixels) {
    BoxAnalysis analysis = AnalysisOf(BlankGrid());
    analysis.Segments = {Across(50, 10, 40), Across(60, 10, 40), Down(80, 10, 40)};
    analysis.Segments[0].Crossings = {38, 12};
    analysis.Segments[1].Crossings = {37, 13, 10};
    analysis.Segments[2].Crossings = {39, 38, 14, 12};
    boxes::TruncateLineOvershoots(analysis);
    EXPECT_EQ(analysis.Segments[0].L, 12);
    EXPECT_EQ(analysis.Segments[0].R, 38);
    EXPECT_EQ(analysis.Segments[1].L, 10);
    EXPECT_EQ(analysis.Segments[1].R, 40);
    EXPECT_EQ(analysis.Segments[2].T, 14) << "each move starts from where the last one ended";
    EXPECT_EQ(analysis.Segments[2].B, 38);
    EXPECT_EQ(analysis.Segments[0].Length, 30);
}

std::vector<int> LengthsAfterGrouping(const std::vector<LineSeg>& segments) {
    BoxAnalysis analysis = AnalysisOf(BlankGrid());
    analysis.Segments = segments;
    boxes::GroupParallelLines(analysis);
    boxes::KeepBestParallel(analysis);
    std::vector<int> lengths;
    for (const LineSeg& segment : analysis.Segments)
        lengths.push_back(segment.Length);
    return lengths;
}

TEST(Groups, KeepTheMemberWithTwoCrossingsElseTheLongest) {
    std::vector<LineSeg> lines = {Across(50, 10, 40), Across(51, 10, 45), Across(52, 10, 42)};
    lines[1].Crossings = {1, 2, 3};
    lines[2].Crossings = {1, 2};
    EXPECT_EQ(LengthsAfterGrouping(lines), std::vector<int>{32});
    lines[0].Crossings = {1};
    lines[2].Crossings = {1, 2, 3};
    EXPECT_EQ(LengthsAfterGrouping(lines), std::vector<int>{35});
}

TEST(Groups, FollowTheirLatestMember) {
    // Each line agrees with the one before in row and in one end, the last ones no more with the first.
    const std::vector<LineSeg> slanted = {Across(50, 10, 40), Across(51, 13, 44), Across(52, 16, 47),
                                          Across(53, 19, 50)};
    EXPECT_EQ(LengthsAfterGrouping(slanted), std::vector<int>{31});
    const std::vector<LineSeg> apart = {Across(50, 10, 40), Across(52, 10, 40), Down(50, 10, 40),
                                        Across(53, 14, 44)};
    EXPECT_EQ(LengthsAfterGrouping(apart).size(), 4U);
}

}  // namespace
}  // namespace tavrene::test
