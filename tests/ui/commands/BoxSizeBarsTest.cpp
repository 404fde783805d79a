#include <gtest/gtest.h>

#include <random>

#include "ui/commands/BoxSizeBars.h"

namespace tavrene::commands {
namespace {

using boxes::BoxSizes;

// The bars as they are described: each change corrects the moved bar by one position at a time until its rule
// holds.
struct SteppingBars {
    int minWidth = 16;
    int maxWidth = 38;
    int minHeight = 34;
    int maxHeight = 16;

    bool Step(Bar bar) {
        switch (bar) {
            case Bar::MinWidth:
                return minWidth > maxWidth && (--minWidth, true);
            case Bar::MaxWidth:
                return maxWidth < minWidth && (++maxWidth, true);
            case Bar::MinHeight:
                if (minHeight < maxHeight)
                    return ++minHeight, true;
                return 50 - minHeight < 10 && (--minHeight, true);
            case Bar::MaxHeight:
                return maxHeight > minHeight && (--maxHeight, true);
        }
        return false;
    }

    int& At(Bar bar) {
        int* const positions[] = {&minWidth, &maxWidth, &minHeight, &maxHeight};
        return *positions[static_cast<int>(bar)];
    }

    void Move(Bar bar, int position) {
        At(bar) = position;
        while (Step(bar)) {
        }
    }
};

TEST(BoxSizeBarsTest, EndWhereSteppingByOneEnds) {
    std::mt19937 random(7);
    SteppingBars stepping;
    BoxSizeBars bars;
    bars.SetSizes({16, 38, 16, 34});
    for (int i = 0; i < 5000; ++i) {
        const Bar bar = kAllBars[random() % 4];
        const int position = 10 + static_cast<int>(random() % 41);
        stepping.Move(bar, position);
        bars.Move(bar, position);
        for (const Bar each : kAllBars)
            ASSERT_EQ(bars.Position(each), stepping.At(each)) << "after move " << i;
    }
}

TEST(BoxSizeBarsTest, TakeStoredSizesWhateverTheyShowedBefore) {
    BoxSizeBars bars;
    bars.SetSizes({40, 45, 36, 39});
    EXPECT_EQ(bars.Sizes(), (BoxSizes{40, 45, 36, 39}));
    bars.SetSizes({12, 14, 11, 13});
    EXPECT_EQ(bars.Sizes(), (BoxSizes{12, 14, 11, 13}));
    bars.SetSizes({200, -3, 200, -3});
    EXPECT_EQ(bars.Sizes(), (BoxSizes{10, 10, 10, 10}));
    bars.SetSizes({-3, 200, -3, 200});
    EXPECT_EQ(bars.Sizes(), (BoxSizes{10, 50, 10, 40}));
}

TEST(BoxSizeBarsTest, PreviewsKeepTheHalvesOfOddDifferences) {
    const PreviewBox box = BoxInPreview(88, 88, 17, 34);
    EXPECT_EQ(box.left, 35.5);
    EXPECT_EQ(box.right, 52.5);
    EXPECT_EQ(box.top, 27);
    EXPECT_EQ(box.bottom, 61);
}

}  // namespace
}  // namespace tavrene::commands
