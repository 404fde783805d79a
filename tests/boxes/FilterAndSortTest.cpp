#include <gtest/gtest.h>

#include <algorithm>

#include "boxes/BoxFilter.h"
#include "boxes/BoxSort.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxRect;

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

std::vector<BoxRect> Filtered(std::vector<BoxRect> boxes) {
    BoxAnalysis analysis(imaging::WorkGrid(10, 32, 10), {20, 40, 20, 40}, {});
    analysis.Boxes = std::move(boxes);
    boxes::FilterBoxes(analysis);
    return analysis.Boxes;
}

TEST(Filter, KeepsTheTwoSizesOfAForm) {
    std::vector<BoxRect> all;
    for (int index = 0; index < 40; ++index)
        all.push_back(Rect(10 + 50 * index, 20, 30, 30));
    for (int index = 0; index < 3; ++index)
        all.push_back(Rect(10 + 50 * index, 80, 22, 24));
    const std::vector<BoxRect> expected = all;
    all.push_back(Rect(10, 140, 38, 24));
    EXPECT_EQ(Filtered(all), expected) << "a single odd one is no third size";
    EXPECT_EQ(boxes::ChooseReferenceSizes(all).Second, (boxes::BoxSize{22, 24}));
    all.resize(42);
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
