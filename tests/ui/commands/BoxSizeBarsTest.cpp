#include <gtest/gtest.h>

#include "ui/commands/BoxSizeBars.h"

namespace tavrene::commands {
namespace {

using boxes::BoxSizes;

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
