#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "app/Files.h"
#include "app/Numeric.h"
#include "support/Faults.h"
#include "support/TempFolder.h"

namespace tavrene::app {
namespace {

class DiskFilesTest : public ::testing::Test {
  protected:
    std::size_t EntriesOnDisk() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(folder_.Path()), {}));
    }

    test::TempFolder folder_;
    DiskFiles files_;
};

TEST_F(DiskFilesTest, ListsPlainFilesByLowerCasedName) {
    for (const char* name : {"b.tvp", "A.TVP", "a.tvp", "C d.Tvp", ".e.tvp", "f.tvp.bak", "ü.tvp", "Über.tvp",
                             "Ärger.tvp", "ähnlich.tvp", "\xFF.tvp"})
        test::WriteText(folder_.File(name), "x");
    files_.CreateFolder(folder_.File("folder.tvp"));
    EXPECT_EQ(files_.List(folder_.Path() + "/", "*.Tvp"),
              (std::vector<std::string>{"A.TVP", "a.tvp", "b.tvp", "C d.Tvp", "ähnlich.tvp", "Ärger.tvp",
                                        "ü.tvp", "Über.tvp", "\xFF.tvp"}));
    EXPECT_EQ(files_.List(folder_.Path() + "/", ".*"), std::vector<std::string>{".e.tvp"});
    EXPECT_THROW(files_.List(folder_.File("none"), "*"), FileError);
}

TEST_F(DiskFilesTest, ReplacesAFileAsAWholeOrNotAtAll) {
    const std::string path = folder_.File(std::string(250, 'n'));
    files_.Write(path, AsBytes("old"), Keep::Durably);
    files_.Write(path, AsBytes("newer"), Keep::AsScratch);
    EXPECT_EQ(test::ReadText(path), "newer");
    EXPECT_EQ(EntriesOnDisk(), 1U);

    // A folder in the way refuses the last step, the renaming.
    files_.CreateFolder(folder_.File("taken"));
    const std::string taken = folder_.File("taken");
    const std::string fault = test::FaultOf([&] { files_.Write(taken, AsBytes("x"), Keep::Durably); });
    EXPECT_PRED2(test::Has, fault, "Cannot write " + taken + ": ");
    EXPECT_EQ(EntriesOnDisk(), 2U);
    const std::string none = folder_.File("none/a.xml");
    EXPECT_EQ(test::FaultOf([&] { files_.Write(none, AsBytes("x"), Keep::Durably); }),
              "Cannot write " + none + ": No such file or directory");
}

TEST_F(DiskFilesTest, MovesOverAnotherFileAndAcrossFileSystems) {
    test::WriteText(folder_.File("a"), "new");
    test::WriteText(folder_.File("b"), "old");
    files_.Move(folder_.File("a"), folder_.File("b"));
    EXPECT_EQ(test::ReadText(folder_.File("b")), "new");
    EXPECT_FALSE(files_.FileExists(folder_.File("a")));
    EXPECT_THROW(files_.Move(folder_.File("a"), folder_.File("b")), FileError);

    // Of two links to one file the system would keep both.
    std::filesystem::create_hard_link(folder_.File("b"), folder_.File("c"));
    files_.Move(folder_.File("c"), folder_.File("b"));
    EXPECT_EQ(test::ReadText(folder_.File("b")), "new");
    EXPECT_FALSE(files_.FileExists(folder_.File("c")));
    files_.Move(folder_.File("b"), folder_.Path() + "/./b");
    EXPECT_EQ(test::ReadText(folder_.File("b")), "new");

    // A link that arrived as one would lose the file here, and point elsewhere in another folder.
    std::filesystem::create_symlink("b", folder_.File("c"));
    files_.Move(folder_.File("c"), folder_.File("b"));
    EXPECT_EQ(test::ReadText(folder_.File("b")), "new");
    EXPECT_EQ(EntriesOnDisk(), 1U);

    files_.CreateFolder(folder_.File("taken"));
    EXPECT_EQ(test::FaultOf([&] { files_.Move(folder_.File("b"), folder_.File("taken")); }),
              "Cannot move " + folder_.File("b") + ": " + folder_.File("taken") + " is a folder");
    EXPECT_EQ(test::FaultOf([&] { files_.Move(folder_.File("b"), folder_.File("b/c")); }),
              "Cannot move " + folder_.File("b") + " to " + folder_.File("b/c") + ": Not a directory");
}

TEST_F(DiskFilesTest, ReadsNoFileThatCannotBeOneOfItsOwn) {
    test::WriteText(folder_.File("sparse"), "x");
    std::filesystem::resize_file(folder_.File("sparse"), std::uintmax_t{60} << 30U);
    EXPECT_EQ(test::FaultOf([&] { files_.Read(folder_.File("sparse")); }),
              "Cannot read " + folder_.File("sparse") + ": it is larger than one gigabyte");
}

class MoveAcrossTest : public DiskFilesTest {
  protected:
    MoveAcrossTest() {
        char name[] = "/dev/shm/tavrene-XXXXXX";
        if (::mkdtemp(name) != nullptr)
            other_ = name;
    }
    void TearDown() override { std::filesystem::remove_all(other_); }

    void SetUp() override {
        struct ::stat here {};
        struct ::stat there {};
        if (::stat(folder_.Path().c_str(), &here) != 0 || ::stat(other_.c_str(), &there) != 0 ||
            here.st_dev == there.st_dev)
            GTEST_SKIP() << "there is no second file system to move to";
    }

    std::string other_;
};

TEST_F(MoveAcrossTest, TheSourceGoesWhenTheCopyIsComplete) {
    const std::string content(3'000'000, 'x');
    test::WriteText(folder_.File("a"), content);
    test::WriteText(other_ + "/a", "old");
    files_.Move(folder_.File("a"), other_ + "/a");
    EXPECT_EQ(test::ReadText(other_ + "/a"), content);
    EXPECT_EQ(EntriesOnDisk(), 0U);
    EXPECT_THROW(files_.Move(folder_.File("a"), other_ + "/a"), FileError);
    EXPECT_EQ(files_.List(other_, "*").size() + files_.List(other_, ".*").size(), 1U);
}

TEST_F(MoveAcrossTest, HolesTakeNoRoom) {
    test::WriteText(folder_.File("sparse"), "begin");
    std::filesystem::resize_file(folder_.File("sparse"), std::uintmax_t{60} << 30U);
    files_.Append(folder_.File("sparse"), "end");
    files_.Move(folder_.File("sparse"), other_ + "/sparse");
    struct ::stat moved {};
    ASSERT_EQ(::stat((other_ + "/sparse").c_str(), &moved), 0);
    EXPECT_EQ(moved.st_size, (::off_t{60} << 30U) + 3);
    EXPECT_LT(moved.st_blocks, 1'000);
    std::ifstream content(other_ + "/sparse");
    std::string begin(5, ' ');
    std::string end(3, ' ');
    content.read(begin.data(), 5).seekg(-3, std::ios::end).read(end.data(), 3);
    EXPECT_EQ(begin + end, "beginend");
}

TEST_F(MoveAcrossTest, AFileThatIsStillGrowingIsNotTaken) {
    const std::string path = folder_.File("a");
    test::WriteText(path, std::string(30'000'000, 'x'));
    const std::string before = files_.Fingerprint(path);
    const ::pid_t scanner = ::fork();
    if (scanner == 0) {
        for (;; ::usleep(100))
            files_.Append(path, "x");
    }
    while (files_.Fingerprint(path) == before)
        ::usleep(100);
    const std::string fault = test::FaultOf([&] { files_.Move(path, other_ + "/a"); });
    ::kill(scanner, SIGKILL);
    ::waitpid(scanner, nullptr, 0);
    EXPECT_EQ(fault, "Cannot move " + path + ": somebody is still writing to it");
    EXPECT_TRUE(std::filesystem::is_empty(other_));
    files_.Move(path, other_ + "/a");
    EXPECT_TRUE(files_.FileExists(other_ + "/a"));
}

TEST_F(MoveAcrossTest, WhatCannotBeDeletedIsNotCopied) {
    test::WriteText(folder_.File("a"), "new");
    ::chmod(folder_.Path().c_str(), 0555);
    ::chmod(other_.c_str(), 0777);
    const ::pid_t nobody = ::fork();
    if (nobody == 0) {
        // The superuser may delete everywhere.
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            ::_exit(2);
        const std::string fault = test::FaultOf([&] { files_.Move(folder_.File("a"), other_ + "/a"); });
        ::_exit(test::Has(fault, "Permission denied") ? 0 : 1);
    }
    int status = -1;
    ::waitpid(nobody, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(std::filesystem::is_empty(other_));
    ::chmod(folder_.Path().c_str(), 0755);
}

TEST(NumericTest, RoundsHalvesToTheEvenNeighbour) {
    for (const auto& [value, rounded] : {std::pair{0.5, 0},
                                         {1.5, 2},
                                         {2.5, 2},
                                         {-0.5, 0},
                                         {-1.5, -2},
                                         {-2.5, -2},
                                         {2.4999, 2},
                                         {-2.6, -3},
                                         {1e12, 2147483647}})
        EXPECT_EQ(RoundToInt(value), rounded) << value;
    EXPECT_EQ(RoundToInt16(40'000.0), 32'767);
    EXPECT_EQ(WrapToInt16(40'000), -25'536);
}

}  // namespace
}  // namespace tavrene::app
