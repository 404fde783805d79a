#include <gtest/gtest.h>

#include <algorithm>

#include "boxes/BoxFilter.h"
#include "boxes/BoxSort.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxRect;

using boxes::BoxOutline;
using boxes::LeftOutFor;
using boxes::RuledBox;

BoxRect Rect(int left, int lower, int width, int height) {
    BoxRect box;
    box.L = static_cast<std::int16_t>(left);
    box.T = static_cast<std::int16_t>(lower);
    box.R = static_cast<std::int16_t>(left + width);
    box.B = static_cast<std::int16_t>(lower + height);
    return box;
}

const BoxOutline kClosed{};
const BoxOutline kOneOpen{.OpenCorners = 1};
const BoxOutline kPrinted{.IsEmpty = false, .HasStraightSides = true, .IsDeadStraight = true};

// Rectangles as the rules hand them over, each in a place of its own unless one is given.
class Page {
  public:
    Page& Add(int count, int width, int height, const BoxOutline& outline = kClosed) {
        for (; count > 0; --count)
            AddAt(10 + 50 * static_cast<int>(ruled_.size()), width, height, outline);
        return *this;
    }
    Page& AddAt(int left, int width, int height, const BoxOutline& outline = kClosed) {
        ruled_.push_back({Rect(left, 20, width, height), outline});
        return *this;
    }

    BoxAnalysis Filtered() const {
        BoxAnalysis analysis(imaging::WorkGrid(10, 32, 10), {20, 40, 20, 40}, {});
        boxes::FilterBoxes(analysis, ruled_);
        return analysis;
    }

  private:
    std::vector<RuledBox> ruled_;
};

std::vector<LeftOutFor> Reasons(const BoxAnalysis& analysis) {
    std::vector<LeftOutFor> reasons;
    for (const boxes::LeftOutBox& leftOut : analysis.LeftOut)
        reasons.push_back(leftOut.Reason);
    return reasons;
}

using Reasoned = std::vector<LeftOutFor>;

TEST(Filter, KeepsTheTwoSizesOfAFormAndASmallSecondOne) {
    const BoxAnalysis two = Page().Add(400, 30, 30).Add(2, 22, 24).Add(1, 38, 24).Filtered();
    EXPECT_EQ(two.Boxes.size(), 402U);
    EXPECT_EQ(Reasons(two), Reasoned{LeftOutFor::OddSize}) << "a single odd one is no third size";
    const BoxAnalysis one = Page().Add(40, 30, 30).Add(1, 22, 24).Filtered();
    EXPECT_EQ(one.Boxes.size(), 40U) << "one is no second size";
    const BoxAnalysis open = Page().Add(40, 30, 30).Add(5, 22, 24, kOneOpen).Filtered();
    EXPECT_EQ(open.Boxes.size(), 40U) << "open corners may be letters";
}

TEST(Filter, ThreePixelsOffNeedAClosedOutlineAndOfTwinsTheLastStays) {
    const BoxAnalysis page = Page()
                                 .AddAt(10, 30, 30)
                                 .Add(4, 30, 30)
                                 .AddAt(10, 30, 30)
                                 .Add(1, 33, 30)
                                 .Add(1, 32, 28, kOneOpen)
                                 .Add(1, 33, 30, kOneOpen)
                                 .Add(1, 34, 30)
                                 .Filtered();
    EXPECT_EQ(page.Boxes.size(), 7U);
    EXPECT_EQ(page.Boxes[4], [] {
        BoxRect twin = Rect(10, 20, 30, 30);
        twin.Valid = -1;
        return twin;
    }());
    EXPECT_EQ(Reasons(page), (Reasoned{LeftOutFor::OddSize, LeftOutFor::OddSize}));
}

TEST(Filter, PrintInsideBelongsToAFormThatHasItInManyBoxes) {
    EXPECT_EQ(Page().Add(8, 30, 30, kPrinted).Add(7, 30, 30).Filtered().Boxes.size(), 15U);
    EXPECT_EQ(Page().Add(7, 30, 30, kPrinted).Add(3, 30, 30).Filtered().Boxes.size(), 3U) << "too few";
    EXPECT_EQ(Page().Add(8, 30, 30, kPrinted).Add(9, 30, 30).Filtered().Boxes.size(), 9U)
        << "most of that size are empty";
    EXPECT_EQ(Page().Add(8, 22, 24, kPrinted).Add(17, 30, 30).Filtered().Boxes.size(), 17U)
        << "letters among boxes of another size";
    BoxOutline bent = kPrinted;
    bent.IsDeadStraight = false;
    const BoxAnalysis letters = Page().Add(20, 30, 30, bent).Filtered();
    EXPECT_EQ(Reasons(letters), Reasoned(20, LeftOutFor::PrintInside)) << "none of them has a straight side";
}

TEST(Filter, WhatDoesNotLookLikeABoxIsLeftOutWithItsReason) {
    const BoxOutline straight{.OpenCorners = 4, .HasStraightSides = true};
    const BoxAnalysis page = Page()
                                 .Add(5, 30, 30)
                                 .Add(2, 31, 30, straight)
                                 .Add(1, 30, 30, {.OpenCorners = 2})
                                 .Add(1, 30, 30, {.OpenCorners = 1, .HasBow = true})
                                 .Add(1, 30, 30, {.IsOnPrint = false})
                                 .Filtered();
    EXPECT_EQ(page.Boxes.size(), 7U);
    EXPECT_EQ(Reasons(page),
              (Reasoned{LeftOutFor::OpenCorners, LeftOutFor::OpenCorners, LeftOutFor::BesidePrint}));
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
