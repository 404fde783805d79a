#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "boxes/BoxAssembly.h"
#include "boxes/BoxCorners.h"
#include "boxes/BoxFilter.h"
#include "boxes/BoxSort.h"
#include "boxes/CreatedSide.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxRect;
using boxes::BoxSizes;
using boxes::LineSeg;
using boxes::Orientation;
using imaging::WorkGrid;

constexpr BoxSizes kSizes{20, 40, 20, 40};

// A segment that is drawn on the page as well.
class Sheet {
  public:
    Sheet() : analysis(WorkGrid(300, 320, 300), kSizes, boxes::ReachFor(kSizes)) {}

    LineSeg& Across(int row, int left, int right) {
        for (int column = left; column <= right; ++column)
            analysis.SaveGrid.SetInk(column, row);
        return Add(Orientation::Horizontal, left, row, right, row);
    }

    LineSeg& Down(int column, int bottom, int top) {
        for (int row = bottom; row <= top; ++row)
            analysis.SaveGrid.SetInk(column, row);
        return Add(Orientation::Vertical, column, bottom, column, top);
    }

    Sheet& Outline(int width = 30) {
        Across(110, 50, 50 + width);
        Across(140, 50, 50 + width);
        Down(50, 110, 140);
        Down(50 + width, 110, 140);
        return *this;
    }

    std::vector<BoxRect> Boxes() {
        boxes::IdentifyBoxes(analysis);
        return analysis.Boxes;
    }

    BoxAnalysis analysis;

  private:
    LineSeg& Add(Orientation orientation, int left, int bottom, int right, int top) {
        LineSeg segment;
        segment.Orientation = orientation;
        segment.L = static_cast<std::int16_t>(left);
        segment.T = static_cast<std::int16_t>(bottom);
        segment.R = static_cast<std::int16_t>(right);
        segment.B = static_cast<std::int16_t>(top);
        return analysis.Segments.emplace_back(segment);
    }
};

BoxRect Rect(int left, int lower, int width, int height, int mark = 0) {
    BoxRect box;
    box.L = static_cast<std::int16_t>(left);
    box.T = static_cast<std::int16_t>(lower);
    box.R = static_cast<std::int16_t>(left + width);
    box.B = static_cast<std::int16_t>(lower + height);
    box.Kind = mark == 0 ? std::int16_t{0} : std::int16_t{1};
    box.Mark = static_cast<std::int16_t>(mark);
    box.Valid = -1;
    return box;
}

TEST(Assembly, AMissingSideIsCreatedWhicheverItIs) {
    for (int missing = 0; missing <= 4; ++missing) {
        SCOPED_TRACE(missing);
        Sheet sheet;
        std::vector<LineSeg>& sides = sheet.Outline().analysis.Segments;
        if (missing < 4)
            sides.erase(sides.begin() + missing);
        const std::vector<BoxRect> found = sheet.Boxes();
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(std::tie(found[0].L, found[0].T, found[0].R, found[0].B), std::tuple(50, 110, 80, 140));
        EXPECT_EQ(sides.size(), 4U);
        for (const LineSeg& side : sides)
            EXPECT_EQ(side.BoxId, 0) << "the segment that the box was built from counts as well";
    }
}

TEST(Assembly, CornersAreSharedWithinTwoPixels) {
    for (const int off : {2, 3}) {
        SCOPED_TRACE(off);
        Sheet sheet;
        sheet.Across(110, 50, 80);
        sheet.Down(50 + off, 110 + off, 140);
        EXPECT_EQ(boxes::ShareCorner(sheet.analysis.Segments[0], sheet.analysis.Segments[1]), off == 2);
    }
}

TEST(Assembly, BoxesBelowTheSmallestSizeAreDropped) {
    EXPECT_TRUE(Sheet().Outline(19).Boxes().empty());
    EXPECT_EQ(Sheet().Outline(20).Boxes().size(), 1U);
}

TEST(Assembly, ABowlOrABarredLetterIsNoBox) {
    Sheet open;
    open.Across(110, 56, 74);
    open.Across(140, 56, 74);
    open.Down(50, 116, 134);
    open.Down(80, 116, 134);
    for (LineSeg& side : open.analysis.Segments) {
        // Found segments that reach the corners, on a page where the ink does not.
        if (side.IsVertical()) {
            side.T = 110;
            side.B = 140;
        } else {
            side.L = 50;
            side.R = 80;
        }
    }
    EXPECT_TRUE(open.Boxes().empty());

    Sheet barred;
    barred.Outline();
    for (int row = 123; row <= 127; ++row) {
        for (int column = 50; column <= 80; ++column)
            barred.analysis.SaveGrid.SetInk(column, row);
    }
    EXPECT_TRUE(barred.Boxes().empty());
}

TEST(CreatedSide, IsMadeAnewWhereTheInkRunsOnTooFar) {
    Sheet sheet;
    for (int row = 60; row < 160; ++row)
        sheet.analysis.WorkGrid.SetInk(80, row);
    sheet.Down(50, 110, 140);
    const boxes::ExpectedSide expected{{80, 107}, {80, 143}};
    const LineSeg side = boxes::CreateSide(sheet.analysis, sheet.analysis.Segments[0], expected, 3);
    EXPECT_EQ(boxes::OverlongInk(sheet.analysis, side), 100);
    EXPECT_EQ(side.L, 80);
    EXPECT_EQ(side.T, 110) << "as long as the side that it faces";
    EXPECT_EQ(side.B, 140);
    EXPECT_EQ(side.BoxId, 3);

    for (int row = 60; row < 160; ++row)
        sheet.analysis.WorkGrid.SetInk(80, row, row >= 105 && row < 145);
    const LineSeg fitting = boxes::CreateSide(sheet.analysis, sheet.analysis.Segments[0], expected, 3);
    EXPECT_EQ(boxes::OverlongInk(sheet.analysis, fitting), 0) << "40 pixels are not more than the largest";
    EXPECT_EQ(fitting.T, 107);
}

std::vector<BoxRect> Filtered(std::vector<BoxRect> boxes) {
    BoxAnalysis analysis(WorkGrid(10, 32, 10), kSizes, boxes::ReachFor(kSizes));
    analysis.Boxes = std::move(boxes);
    boxes::FilterBoxes(analysis);
    return analysis.Boxes;
}

TEST(Filter, KeepsTheTwoSizesOfAForm) {
    std::vector<BoxRect> all;
    for (int index = 0; index < 8; ++index)
        all.push_back(Rect(10 + 50 * index, 20, 30, 30));
    for (int index = 0; index < 3; ++index)
        all.push_back(Rect(10 + 50 * index, 80, 22, 24));
    const std::vector<BoxRect> expected = all;
    all.push_back(Rect(10, 140, 38, 24));
    EXPECT_EQ(Filtered(all), expected) << "a single odd one is no third size";
    EXPECT_EQ(boxes::ChooseReferenceSizes(all).Second, (boxes::BoxSize{22, 24}));
    all.resize(10);
    EXPECT_EQ(boxes::ChooseReferenceSizes(all).Second, (boxes::BoxSize{30, 30})) << "two are no second size";
}

TEST(Filter, ThreePixelsOffNeedAClosedOutlineAndOfTwinsTheLastStays) {
    const BoxRect twin = Rect(10, 20, 30, 30);
    std::vector<BoxRect> all = {twin};
    std::vector<BoxRect> expected;
    for (int index = 1; index < 5; ++index)
        expected.push_back(Rect(10 + 50 * index, 20, 30, 30));
    expected.push_back(twin);
    expected.push_back(Rect(10, 80, 33, 30));
    expected.push_back(Rect(60, 80, 32, 28, -1));
    all.insert(all.end(), expected.begin(), expected.end());
    all.push_back(Rect(110, 80, 33, 30, -1));
    all.push_back(Rect(160, 80, 34, 30));
    EXPECT_EQ(Filtered(all), expected);
}

TEST(Sort, TopOfThePageFirstThenFromLeftToRight) {
    std::vector<BoxRect> boxes;
    for (int index = 0; index < 40; ++index)
        boxes.push_back(Rect(index * 37 % 41 * 9, index % 5, 30, 30));
    boxes::SortBoxes(boxes, 400);
    EXPECT_TRUE(std::is_sorted(boxes.begin(), boxes.end(), [](const BoxRect& a, const BoxRect& b) {
        return a.T != b.T ? a.T > b.T : a.L < b.L;
    }));
}

}  // namespace
}  // namespace tavrene::test
