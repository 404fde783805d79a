#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

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
    for (const char* name : {"b.tvp", "A.TVP", "a.tvp", "C d.Tvp", ".e.tvp", "f.tvp.bak", "ü.tvp"})
        test::WriteText(folder_.File(name), "x");
    files_.CreateFolder(folder_.File("folder.tvp"));
    EXPECT_EQ(files_.List(folder_.Path() + "/", "*.Tvp"),
              (std::vector<std::string>{"A.TVP", "a.tvp", "b.tvp", "C d.Tvp", "ü.tvp"}));
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

    const std::string other = "/dev/shm/tavrene-move-test";
    struct ::stat here {};
    struct ::stat there {};
    if (::stat(folder_.Path().c_str(), &here) != 0 || ::stat("/dev/shm", &there) != 0 ||
        here.st_dev == there.st_dev)
        GTEST_SKIP() << "there is no second file system to move to";
    files_.Move(folder_.File("b"), other);
    EXPECT_EQ(test::ReadText(other), "new");
    EXPECT_FALSE(files_.FileExists(folder_.File("b")));
    files_.Delete(other);
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
