#include "support/RunWorld.h"

namespace tavrene::app {
namespace {

using ActivityLogTest = test::RunWorld;

TEST_F(ActivityLogTest, WritesOneStampedLineAnEventIntoTheFileOfTheDay) {
    clock_.now = {2024, 12, 31, 23, 59, 59};
    log_.LogProcessEvent("last");
    clock_.now = {2025, 1, 1, 0, 0, 0};
    log_.LogProcessEvent("first", ShowInStatusBar::Yes);
    clock_.now = {2025, 1, 1, 12, 0, 5};
    log_.LogProcessEvent("");
    log_.LogProfileEvent("profile");
    EXPECT_EQ(test::ReadText(folders_.Log + "TavreneBoxes-Process-20241231.Log"), "11:59:59 PM last\r\n");
    EXPECT_EQ(test::ReadText(folders_.Log + "TavreneBoxes-Process-20250101.Log"),
              "12:00:00 AM first\r\n12:00:05 PM \r\n");
    EXPECT_EQ(test::ReadText(folders_.Log + "TavreneBoxes-Profile-20250101.Log"), "12:00:05 PM profile\r\n");
    EXPECT_EQ(transcript_.Lines(), (std::vector<std::string>{"panel Message: first"}));
}

TEST_F(ActivityLogTest, WritesTheCodePageOfItsReaders) {
    log_.LogProcessEvent("Größe – 5 € \xE2\x96\xA1 \xF0\x9F\x99\x82 \xFF\xC3");
    EXPECT_EQ(test::ReadText(folders_.Log + "TavreneBoxes-Process-20240305.Log"),
              "02:05:09 PM Gr\xF6\xDF"
              "e \x96 5 \x80 ? ? ??\r\n");
}

TEST_F(ActivityLogTest, CountsTheLinesThatAreLost) {
    files_.refuse = [](const std::string&, const std::string&) { return true; };
    log_.LogProcessEvent("lost", ShowInStatusBar::Yes);
    log_.LogProfileEvent("lost");
    EXPECT_EQ(transcript_.Lines(), (std::vector<std::string>{"panel Message: lost"}));
    EXPECT_EQ(log_.TakeLostLines(), 2);
    EXPECT_EQ(log_.TakeLostLines(), 0);
}

}  // namespace
}  // namespace tavrene::app
