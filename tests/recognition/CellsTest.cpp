#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "recognition/precise/CellPage.h"

namespace tavrene::recognition::precise {
namespace {

// Of ink so dense that strokes, gaps and corners all occur; the width is no multiple of a word.
BitPlane RandomPlane(std::mt19937& random, int width, int height, unsigned inkOutOfTen) {
    BitPlane plane(width, height);
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            if (random() % 10 < inkOutOfTen)
                plane.Set(column, row);
        }
    }
    return plane;
}

template <typename Plain>
void ExpectEqual(const BitPlane& plane, Plain plain, const char* what) {
    for (int row = 0; row < plane.Height(); ++row) {
        for (int column = 0; column < plane.Width(); ++column)
            ASSERT_EQ(plane.Has(column, row), plain(column, row)) << what << " " << column << "," << row;
        ASSERT_EQ(plane.Row(row)[plane.Words() - 1] & ~plane.LastWordMask(), 0U)
            << what << ": ink beyond the width";
    }
}

bool AnyAround(const BitPlane& plane, int column, int row, int reach, bool itself) {
    for (int y = row - reach; y <= row + reach; ++y) {
        for (int x = column - reach; x <= column + reach; ++x) {
            if ((itself || x != column || y != row) && plane.Has(x, y))
                return true;
        }
    }
    return false;
}

TEST(BitPlaneTest, WordsGiveWhatSingleCellsWould) {
    std::mt19937 random(7);
    for (const int width : {1, 63, 64, 65, 150}) {
        const BitPlane plane = RandomPlane(random, width, 41, 2);
        ExpectEqual(
            Halved(plane),
            [&](int x, int y) {
                return plane.Has(2 * x, 2 * y) || plane.Has(2 * x + 1, 2 * y) ||
                       plane.Has(2 * x, 2 * y + 1) || plane.Has(2 * x + 1, 2 * y + 1);
            },
            "halved");
        for (const int reach : {1, 3, 6})
            ExpectEqual(
                Dilated(plane, reach), [&](int x, int y) { return AnyAround(plane, x, y, reach, true); },
                "dilated");
        // A white page with lone specks, and some that touch another.
        const BitPlane noisy = RandomPlane(random, width, 400, 1);
        const BitPlane clean = WithoutNoise(noisy);
        if (clean.Count() != noisy.Count())
            ExpectEqual(
                clean, [&](int x, int y) { return noisy.Has(x, y) && AnyAround(noisy, x, y, 2, false); },
                "without noise");
    }
}

TEST(BitPlaneTest, FewSpecksAreNoNoise) {
    BitPlane page(400, 400);
    for (int k = 0; k < 20; ++k)
        page.Set(k * 19, k * 17);
    EXPECT_EQ(WithoutNoise(page).Count(), 20U);
    std::mt19937 random(3);
    for (int k = 0; k < 1600; ++k)
        page.Set(static_cast<int>(random() % 400), static_cast<int>(random() % 400));
    EXPECT_LT(WithoutNoise(page).Count(), 700U);
}

// A stroke of six cells from a place on, told cell by cell.
bool PlainStroke(const BitPlane& plane, int column, int row, bool level, int step) {
    const auto thick = [&](int along) {
        for (int off = -1; off <= 1; ++off) {
            if (level ? plane.Has(along, row + off) : plane.Has(column + off, along))
                return true;
        }
        return false;
    };
    const int size = level ? plane.Width() : plane.Height();
    const auto closed = [&](int along) {
        if (along < 0 || along >= size)
            return false;
        // Filled when every window of three around it holds ink.
        for (int first = along - 2; first <= along; ++first) {
            if (first + 2 >= size || !(thick(first) || thick(first + 1) || thick(first + 2)))
                return false;
        }
        return true;
    };
    for (int k = 0; k < kStroke; ++k) {
        if (!closed((level ? column : row) + k * step))
            return false;
    }
    return true;
}

TEST(PageCornersTest, AreThoseFoundCellByCell) {
    std::mt19937 random(11);
    const BitPlane plane = RandomPlane(random, 140, 90, 3);
    const PageCorners corners = FindCorners(plane);
    const auto expect = [&](const BitPlane& found, int toRight, int up, const char* what) {
        std::size_t count = 0;
        for (int row = 10; row < 80; ++row) {
            for (int column = 10; column < 130; ++column) {
                const bool plain = PlainStroke(plane, column, row, true, toRight) &&
                                   PlainStroke(plane, column, row, false, up);
                ASSERT_EQ(found.Has(column, row), plain) << what << " " << column << "," << row;
                count += plain ? 1U : 0U;
            }
        }
        EXPECT_GT(count, 0U) << what;
    };
    expect(corners.lowerLeft, 1, 1, "lower left");
    expect(corners.lowerRight, -1, 1, "lower right");
    expect(corners.upperLeft, 1, -1, "upper left");
    expect(corners.upperRight, -1, -1, "upper right");
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
