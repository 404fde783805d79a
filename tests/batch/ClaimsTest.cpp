#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "batch/Claims.h"
#include "support/TempFolder.h"

namespace tavrene::batch {
namespace {

using Names = std::vector<std::string>;
using std::chrono::seconds;

class ClaimsTest : public ::testing::Test {
  protected:
    void Put(const Names& names) {
        for (const std::string& name : names)
            test::WriteText(folder_.File(name), name);
    }

    Names Waiting() const { return files_.List(folder_.Path(), "*"); }

    static Names Sorted(Names names) {
        std::ranges::sort(names);
        return names;
    }

    // The heart beats often enough for nobody to be taken for dead.
    static constexpr seconds kPatience{1000};
    const test::TempFolder folder_;
    const app::DiskFiles files_;
    const std::string path_ = folder_.Path() + "/";
};

TEST_F(ClaimsTest, EachFileIsTakenOnceAndWhatIsLeftComesBack) {
    Put({"a.tif", "b.tif", "c.tif", "d.tif"});
    {
        Claims one(files_, path_, kPatience);
        Claims other(files_, path_, kPatience);
        EXPECT_FALSE(one.OthersWork());
        Names taken = one.Take(2);
        EXPECT_TRUE(other.OthersWork());
        EXPECT_EQ(taken.size(), 2U);
        const Names more = other.Take(9);
        taken.insert(taken.end(), more.begin(), more.end());
        EXPECT_EQ(Sorted(taken), (Names{"a.tif", "b.tif", "c.tif", "d.tif"}));
        EXPECT_EQ(Waiting(), Names());
        EXPECT_EQ(one.Take(9), Names());
        EXPECT_EQ(files_.List(one.Folder(), "*").size(), 2U);

        // A scan whose name somebody else is working on has to wait.
        Put({"b.tif"});
        Claims& without = std::ranges::count(more, "b.tif") > 0 ? one : other;
        EXPECT_EQ(without.Take(9), Names());
        EXPECT_EQ(Waiting(), Names{"b.tif"});
    }
    EXPECT_EQ(Waiting(), (Names{"a.tif", "b-2.tif", "b.tif", "c.tif", "d.tif"}));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Path()), {}), 5)
        << "no claim is left";
}

TEST_F(ClaimsTest, OnlyAClaimThatStandsStillIsTakenOverAndByOneAlone) {
    std::filesystem::create_directory(folder_.File(".claim-dead"));
    Put({".claim-dead/a.tif", ".claim-dead/.note", ".claim-dead/.tavrene-1-1.tmp"});
    Claims one(files_, path_, seconds(60));
    Claims other(files_, path_, seconds(60));
    Claims::Moment now{};
    EXPECT_FALSE(one.TakeOver(now) || other.TakeOver(now));
    EXPECT_FALSE(one.TakeOver(now + seconds(59)));
    std::filesystem::last_write_time(folder_.File(".claim-dead"),
                                     std::filesystem::file_time_type::clock::now() - seconds(9));
    EXPECT_FALSE(one.TakeOver(now += seconds(61))) << "its owner lives";
    const auto taken = one.TakeOver(now += seconds(60));
    ASSERT_TRUE(taken);
    EXPECT_FALSE(other.TakeOver(now += seconds(600))) << "it has another name now, and has just been seen";
    EXPECT_EQ(files_.List(*taken, "*"), Names{"a.tif"});
    EXPECT_TRUE(files_.FileExists(*taken + ".note"));
    std::filesystem::remove(*taken + ".note");
    one.GiveBack(*taken);
    EXPECT_EQ(Waiting(), Names{"a.tif"});
    EXPECT_FALSE(files_.FolderExists(*taken));
    EXPECT_EQ(one.Take(9), Names()) << "it could not do anything about it";
    EXPECT_EQ(other.Take(9), Names{"a.tif"});
}

}  // namespace
}  // namespace tavrene::batch
