#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "batch/IncomingWatch.h"
#include "support/TempFolder.h"

namespace tavrene::batch {
namespace {

using Names = std::vector<std::string>;

TEST(IncomingWatchTest, TakesWhatNobodyWritesToAnyMoreAndEachStateOnce) {
    const test::TempFolder folder;
    const app::DiskFiles files;
    IncomingWatch watch(files, folder.Path() + "/");
    IncomingWatch::Moment now{};
    const auto takenAfter = [&](auto wait) { return watch.Take(now += wait); };
    using std::chrono::milliseconds;

    test::WriteText(folder.File("a.tif"), "half");
    EXPECT_EQ(takenAfter(milliseconds(0)), Names());
    test::WriteText(folder.File("b.tif"), "whole");
    test::WriteText(folder.File("a.tif"), "half and more");
    EXPECT_EQ(takenAfter(milliseconds(1500)), Names());
    test::WriteText(folder.File("a.tif"), "half and the other half");
    EXPECT_EQ(takenAfter(milliseconds(1000)), Names());
    EXPECT_EQ(takenAfter(milliseconds(1000)), Names{"b.tif"});
    EXPECT_EQ(takenAfter(milliseconds(1000)), Names{"a.tif"});
    EXPECT_EQ(takenAfter(milliseconds(60'000)), Names()) << "they stayed, so they wait for the next try";
    test::WriteText(folder.File("b.tif"), "replaced by another");
    EXPECT_EQ(takenAfter(milliseconds(100)), Names());
    EXPECT_EQ(takenAfter(IncomingWatch::kQuiet), Names{"b.tif"});
    EXPECT_EQ(takenAfter(IncomingWatch::kRetry), (Names{"a.tif", "b.tif"}));
}

TEST(IncomingWatchTest, WaitsForAWriterThatPausesButNotForEver) {
    const test::TempFolder folder;
    const app::DiskFiles files;
    IncomingWatch watch(files, folder.Path() + "/");
    IncomingWatch::Moment now{};
    const auto takenAfter = [&](auto wait) { return watch.Take(now += wait); };
    std::ofstream slow(folder.File("slow.tif"));
    std::ofstream stuck(folder.File("stuck.tif"));
    slow << "first half" << std::flush;
    stuck << "first half" << std::flush;
    std::filesystem::create_hard_link(folder.File("slow.tif"), folder.File("link.tif"));
    EXPECT_EQ(takenAfter(IncomingWatch::kQuiet), Names());
    EXPECT_EQ(takenAfter(IncomingWatch::kQuiet), Names{"link.tif"}) << "nobody writes by that name";
    slow << "second half";
    slow.close();
    EXPECT_EQ(takenAfter(std::chrono::milliseconds(100)), Names());
    EXPECT_EQ(takenAfter(IncomingWatch::kQuiet), (Names{"link.tif", "slow.tif"}));
    EXPECT_EQ(takenAfter(IncomingWatch::kRetry), (Names{"link.tif", "slow.tif", "stuck.tif"}));
}

}  // namespace
}  // namespace tavrene::batch
