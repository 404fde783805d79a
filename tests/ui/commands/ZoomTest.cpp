#include <gtest/gtest.h>

#include "ui/commands/Zoom.h"

namespace tavrene::commands {
namespace {

// The series from 100 percent are tried in the window.
TEST(ZoomTest, GrowsFromTheLeastAndStepsFromAZoomThatFits) {
    EXPECT_EQ(ZoomedIn(2), 3) << "half a percent would stay where it is";
    EXPECT_EQ(ZoomedIn(3), 4);
    EXPECT_EQ(ZoomedOut(92.16), 74);
}

TEST(ZoomTest, FitsPagesOfEveryShapeWithoutRounding) {
    EXPECT_DOUBLE_EQ(ZoomToFitPage({1000, 3000}, {500, 600}), 20);
    EXPECT_DOUBLE_EQ(ZoomToFitPage({3000, 1000}, {700, 600}), 100 * 7.0 / 30);
    EXPECT_DOUBLE_EQ(ZoomToFitPage({0, 0}, {700, 600}), 100);
    EXPECT_DOUBLE_EQ(ZoomToFitWidth({3000, 1000}, {750, 600}, 16), 25);
    EXPECT_DOUBLE_EQ(ZoomToFitWidth({1000, 3000}, {516, 600}, 16), 50);
}

}  // namespace
}  // namespace tavrene::commands
