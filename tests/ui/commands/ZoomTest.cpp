#include <gtest/gtest.h>

#include <vector>

#include "ui/commands/Zoom.h"

namespace tavrene::commands {
namespace {

std::vector<double> Steps(double zoom, double (*step)(double), int count) {
    std::vector<double> steps;
    for (int i = 0; i < count; ++i)
        steps.push_back(zoom = step(zoom));
    return steps;
}

TEST(ZoomTest, GoesUpByAQuarterAndStaysAtTheTop) {
    EXPECT_EQ(Steps(100, ZoomedIn, 4), (std::vector<double>{125, 156, 195, 244}));
    EXPECT_EQ(Steps(5000, ZoomedIn, 4), (std::vector<double>{6250, 6500, 6500, 6500}));
    EXPECT_EQ(Steps(2, ZoomedIn, 4), (std::vector<double>{3, 4, 5, 6}));
}

TEST(ZoomTest, GoesDownByAFifthAndStaysAtTheBottom) {
    EXPECT_EQ(Steps(100, ZoomedOut, 3), (std::vector<double>{80, 64, 51}));
    EXPECT_EQ(Steps(4, ZoomedOut, 4), (std::vector<double>{3, 2, 2, 2}));
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
