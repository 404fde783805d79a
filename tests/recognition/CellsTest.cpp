#include <gtest/gtest.h>

#include <algorithm>

#include "recognition/precise/CellPage.h"

namespace tavrene::recognition::precise {
namespace {

// Each cell counts for itself, so that lone cells at the ends of words and rows tell all.
TEST(BitPlaneTest, ALoneCellBecomesOneWhenHalvedAndASquareWhenDilated) {
    for (const int width : {1, 63, 64, 65, 150}) {
        for (const int column : {0, 1, 62, 63, 64, 65, 127, 128, width - 1}) {
            for (const int row : {0, 20, 40}) {
                SCOPED_TRACE(std::to_string(column) + "," + std::to_string(row) + " of " +
                             std::to_string(width));
                BitPlane plane(width, 41);
                if (column >= width)
                    continue;
                plane.Set(column, row);
                const BitPlane half = Halved(plane);
                EXPECT_EQ(half.Width(), (width + 1) / 2);
                EXPECT_EQ(half.Count(), 1U);
                EXPECT_TRUE(half.Has(column / 2, row / 2));
                for (const int reach : {1, 3, 6}) {
                    const int left = std::max(0, column - reach);
                    const int right = std::min(width - 1, column + reach);
                    const int low = std::max(0, row - reach);
                    const int high = std::min(40, row + reach);
                    const BitPlane square = Dilated(plane, reach);
                    EXPECT_EQ(square.Count(),
                              static_cast<std::size_t>((right - left + 1) * (high - low + 1)));
                    EXPECT_TRUE(square.Has(left, low) && square.Has(right, high));
                }
            }
        }
    }
}

TEST(BitPlaneTest, ManySpecksAreNoiseAndWhatTouchesAnotherIsNot) {
    BitPlane page(400, 400);
    for (int k = 0; k < 20; ++k)
        page.Set(k * 19, k * 17);
    EXPECT_EQ(WithoutNoise(page).Count(), 20U) << "few of them may be print";
    for (int k = 0; k < 1600; ++k)
        page.Set(k % 40 * 10, k / 40 * 10);
    BitPlane pairs(400, 400);
    for (const auto& [column, row] : {std::pair{62, 5}, {125, 205}, {397, 395}}) {
        for (BitPlane* const plane : {&page, &pairs}) {
            plane->Set(column, row);
            plane->Set(column + 2, row + 2);
        }
    }
    const BitPlane clean = WithoutNoise(page);
    EXPECT_LT(clean.Count(), 50U);
    for (const auto& [column, row] : {std::pair{62, 5}, {125, 205}, {397, 395}})
        EXPECT_TRUE(clean.Has(column, row) && clean.Has(column + 2, row + 2)) << column;
}

TEST(PageCornersTest, StrokesOfSixCellsWithGapsOfTwoMeetInACorner) {
    const struct {
        std::vector<int> cells;
        bool isStroke;
    } kinds[] = {{{0, 1, 2, 3, 4, 5}, true}, {{0, 3, 5}, true}, {{0, 4, 5}, false}, {{0, 1, 2, 3, 4}, false}};
    for (const int toRight : {1, -1}) {
        for (const int up : {1, -1}) {
            for (const auto& level : kinds) {
                for (const auto& upright : kinds) {
                    BitPlane plane(140, 90);
                    for (const int cell : level.cells)
                        plane.Set(63 + cell * toRight, 40 + cell / 2 % 2);  // not quite level
                    for (const int cell : upright.cells)
                        plane.Set(63, 40 + cell * up);
                    const PageCorners corners = FindCorners(plane);
                    const BitPlane& found = up > 0 ? (toRight > 0 ? corners.lowerLeft : corners.lowerRight)
                                                   : (toRight > 0 ? corners.upperLeft : corners.upperRight);
                    EXPECT_EQ(found.Has(63, 40), level.isStroke && upright.isStroke)
                        << toRight << " " << up << " " << level.cells.size() << " " << upright.cells.size();
                }
            }
        }
    }
}

void DrawBox(BitPlane& plane, int left, int low, int side) {
    for (int k = 0; k <= side; ++k) {
        plane.Set(left + k, low);
        plane.Set(left + k, low + side);
        plane.Set(left, low + k);
        plane.Set(left + side, low + k);
    }
}

TEST(CandidatePlacesTest, FindsBoxesOfItsSizeAndLooksThemUpByPlace) {
    BitPlane plane(300, 200);
    const std::vector<std::pair<int, int>> corners = {{20, 30}, {60, 30}, {200, 30}, {90, 150}, {270, 180}};
    for (const auto& [left, low] : corners)
        DrawBox(plane, left, low, 14);
    DrawBox(plane, 140, 100, 28);  // of another size
    CellPage page(plane, 2);
    const CandidatePlaces& places = page.PlacesFor(14, 14);
    ASSERT_EQ(places.Count(), corners.size());
    EXPECT_EQ(&places, &page.PlacesFor(14.6, 13.4)) << "sizes nearby share their candidates";
    for (const auto& [left, low] : corners) {
        const CellPoint middle{left + 7.0, low + 7.0};
        const auto found = places.Nearest({middle.x + 2, middle.y - 2}, 5);
        ASSERT_TRUE(found);
        EXPECT_NEAR(found->x, middle.x, 0.6);
        EXPECT_NEAR(found->y, middle.y, 0.6);
        EXPECT_TRUE(places.IsNear(middle.x + 2, middle.y - 2));
        EXPECT_FALSE(places.IsNear(middle.x + 6, middle.y));
    }
    EXPECT_FALSE(places.Nearest({27, 60}, 10));
    EXPECT_EQ(places.Around({47, 37}, 25).size(), 2U);
    EXPECT_EQ(page.PlacesFor(28, 28).Count(), 1U);
}

}  // namespace
}  // namespace tavrene::recognition::precise
