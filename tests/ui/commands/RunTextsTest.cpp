#include <gtest/gtest.h>

#include "ui/commands/RunTexts.h"

namespace tavrene::commands {
namespace {

TEST(RunTextsTest, TheProgressSaysWhatIsLeftOnceItIsKnown) {
    EXPECT_EQ(ProgressText(138, 675, 60), "138 of 675, 4 min left");
    EXPECT_EQ(ProgressText(600, 675, 60), "600 of 675, 8 s left");
    EXPECT_EQ(ProgressText(3, 675, 0.4), "3 of 675") << "too early to tell";
    EXPECT_EQ(ProgressText(0, 675, 60), "0 of 675");
    EXPECT_EQ(ProgressText(675, 675, 60), "675 of 675");
}

TEST(RunTextsTest, TheSummaryLinksOnlyWhatHasFiles) {
    using recognition::FileEnd;
    const recognition::RunSummary summary = {
        {{"a.tif", FileEnd::Read, ""}, {"b.tif", FileEnd::Refused, "torn"}}, 1, 2};
    EXPECT_EQ(SummaryParts(summary),
              (std::vector<SummaryPart>{{"Last run:", "2 files", "all"},
                                        {"", "1 read", "0"},
                                        {"", "0 not recognised", ""},
                                        {"", "1 refused", "2"},
                                        {"", "0 not written", ""},
                                        {"", "1 second", ""},
                                        {"", "2 scans wait in ProcessIn/.claims", ""}}));
    EXPECT_EQ(WorstLink(summary), "2");
    EXPECT_EQ(FilesBehind(summary, "all").size(), 2U);
    EXPECT_EQ(FilesBehind(summary, "2").at(0).reason, "torn");
}

}  // namespace
}  // namespace tavrene::commands
