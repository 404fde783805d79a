#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#include "app/ClaimFolders.h"
#include "batch/Claims.h"
#include "support/FaultyFiles.h"
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

TEST_F(ClaimsTest, FilesThatShareAResultAreTakenByOneInTheirOrder) {
    Put({"a.jpg", "a.tif", "b.tif", "c.tif"});
    Claims one(files_, path_, kPatience);
    Claims other(files_, path_, kPatience);
    while (!files_.FileExists(one.Folder() + "a.tif")) {
        const Names taken = one.Take(1);
        EXPECT_TRUE(taken.size() == 1 || taken == (Names{"a.jpg", "a.tif"}));
        ASSERT_FALSE(taken.empty());
    }
    Put({"a.png"});
    for (const std::string& name : other.Take(9))
        EXPECT_NE(name, "a.png");
    EXPECT_TRUE(files_.FileExists(folder_.File("a.png")));
    one.GiveBack(one.Folder());
    other.Take(9);
    EXPECT_TRUE(files_.FileExists(other.Folder() + "a.png")) << "now nobody holds one of them";

    // An image has arrived, and its result waits in the claim of one that died.
    std::filesystem::create_directories(folder_.File(".claims/dead"));
    test::WriteText(folder_.File(".claims/dead/.delivery-new-1-.xml"), "<Tavrene Image=\"d.tif\"/>");
    Put({"d.jpg"});
    EXPECT_EQ(one.Take(9), Names());
}

TEST_F(ClaimsTest, AScanOfANameWhoseClaimIsTakenOverMeanwhileWaitsToo) {
    const std::filesystem::path claims = folder_.File(".claims");
    for (const std::string name : {"a", "b", "c"}) {
        std::filesystem::create_directories(claims / name);
        Put({".claims/" + name + "/" + name + ".tif", name + ".jpg"});
        test::WriteText(folder_.File(".claims/" + name + "/.note.xml"), "<Tavrene/>");
    }
    const std::vector<std::filesystem::path> inOrder(std::filesystem::directory_iterator{claims}, {});
    test::FaultyFiles files;
    bool isFirst = true;
    // While the first is looked into, somebody takes the second over, and the third stays.
    files.refuse = [&](const std::string& operation, const std::string& /*path*/) {
        if (operation == "read" && std::exchange(isFirst, false))
            std::filesystem::rename(inOrder[1], claims / "new owner");
        return false;
    };
    Claims one(files, path_, kPatience);
    EXPECT_EQ(one.Take(9), Names());
    EXPECT_FALSE(isFirst);
    EXPECT_TRUE(files.FolderExists(folder_.File(".claims/new owner")));
    EXPECT_EQ(Waiting(), (Names{"a.jpg", "b.jpg", "c.jpg"}));
}

TEST_F(ClaimsTest, WhatWasGivenBackIsTakenAgainWhenItHasChanged) {
    Put({"a.tif"});
    Claims one(files_, path_, kPatience);
    for (const char* const content : {"a.tif", "another scan"}) {
        test::WriteText(folder_.File("a.tif"), content);
        EXPECT_EQ(one.Take(9), Names{"a.tif"});
        EXPECT_EQ(one.GiveBack(one.Folder()), "");
        EXPECT_EQ(one.Take(9), Names());
    }
}

TEST_F(ClaimsTest, ALinkToSomewhereElseStillLeadsThere) {
    test::WriteText(folder_.File("store"), "the scan");
    std::filesystem::create_directories(folder_.File("in/.claims/dead"));
    std::filesystem::create_symlink("../store", folder_.File("in/a.tif"));
    std::filesystem::create_symlink("../store", folder_.File("in/.claims/dead/b.tif"));
    Claims one(files_, folder_.File("in/"), kPatience);
    EXPECT_EQ(one.Take(9), Names{"a.tif"});
    EXPECT_EQ(test::ReadText(one.Folder() + "a.tif"), "the scan");
    EXPECT_FALSE(one.TakeOver({}));
    const auto dead = one.TakeOver(Claims::Moment{} + kPatience);
    ASSERT_TRUE(dead);
    EXPECT_EQ(test::ReadText(*dead + "b.tif"), "the scan");
}

TEST_F(ClaimsTest, AnOwnerHasThePatienceThatItsClaimStates) {
    for (const seconds own : {seconds(1), kPatience}) {
        for (const char* const name : {"5s-quick-1-1", "100s-slow-1-1"})
            std::filesystem::create_directories(folder_.File(".claims/" + std::string(name)));
        Claims::Moment now{};
        Claims one(files_, path_, own);
        EXPECT_FALSE(one.TakeOver(now) || one.TakeOver(now + seconds(4)));
        EXPECT_TRUE(one.TakeOver(now + seconds(5)));
        EXPECT_FALSE(one.TakeOver(now + seconds(99)));
        EXPECT_TRUE(one.TakeOver(now + seconds(100)));
        EXPECT_FALSE(one.OthersWork());
    }
}

TEST_F(ClaimsTest, WhatCannotBeGivenBackIsTriedOnceByEachAndNobodyWaitsForIt) {
    std::filesystem::create_directories(folder_.File(".claims/dead/a folder"));
    Put({".claims/dead/a.tif"});
    const auto later = Claims::Moment{} + 9 * kPatience;
    const std::string left = folder_.File(".claims/left-dead");
    Claims one(files_, path_, kPatience);
    Claims other(files_, path_, kPatience);
    EXPECT_FALSE(one.TakeOver({}));
    const auto dead = one.TakeOver(Claims::Moment{} + kPatience);
    ASSERT_TRUE(dead);
    EXPECT_EQ(one.GiveBack(*dead), left);
    EXPECT_FALSE(one.OthersWork() || one.TakeOver(later));
    const auto again = other.TakeOver({});
    ASSERT_TRUE(again);
    EXPECT_EQ(other.GiveBack(*again), left);
    EXPECT_FALSE(other.OthersWork() || other.TakeOver(later) || one.TakeOver(later));
    EXPECT_TRUE(files_.FolderExists(left + "/a folder"));
    EXPECT_EQ(Waiting(), Names{"a.tif"});
}

TEST_F(ClaimsTest, OnlyAClaimThatStandsStillIsTakenOverAndByOneAlone) {
    std::filesystem::create_directories(folder_.File(".claims/dead"));
    Put({".claims/dead/a.tif", ".claims/dead/.note", ".claims/dead/.tavrene-1-1.tmp"});
    Claims one(files_, path_, seconds(60));
    Claims other(files_, path_, seconds(60));
    Claims::Moment now{};
    EXPECT_FALSE(one.TakeOver(now) || other.TakeOver(now));
    EXPECT_FALSE(one.TakeOver(now + seconds(59)));
    std::filesystem::last_write_time(folder_.File(".claims/dead"),
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

TEST_F(ClaimsTest, AClaimThatCannotBeTakenOverIsToldAndItsNamesStayTaken) {
    Claims one(files_, path_, kPatience);
    const std::string dead = path_ + ".claims/1s-host-7/";
    const std::string inTheWay = one.Folder().substr(0, one.Folder().size() - 1) + "-1/";
    std::filesystem::create_directories(dead);
    std::filesystem::create_directories(inTheWay + "full");
    test::WriteText(dead + "a.tif", "claimed");
    EXPECT_EQ(app::CountClaimed(files_, path_), 1U);
    const Claims::Moment now{};
    EXPECT_EQ(one.TakeOver(now), std::nullopt);
    EXPECT_EQ(one.Hindrance(), "");
    EXPECT_EQ(one.TakeOver(now + seconds(10)), std::nullopt);
    EXPECT_NE(one.Hindrance(), "");
    Put({"a.tif"});
    EXPECT_EQ(one.Take(9), Names()) << "its owner may be asleep";
    EXPECT_EQ(Waiting(), Names{"a.tif"});
    std::filesystem::remove_all(inTheWay);
}

}  // namespace
}  // namespace tavrene::batch
