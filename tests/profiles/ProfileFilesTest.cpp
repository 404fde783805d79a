#include "SessionWorld.h"
#include "support/Faults.h"

namespace tavrene::profiles {
namespace {

using app::Answer;
using test::Has;
using test::ReadText;
using test::WriteText;
using Names = std::vector<std::string>;

class ProfileFilesTest : public test::SessionWorld {};

TEST_F(ProfileFilesTest, MindsWhatOthersDoToTheFile) {
    AddProfiles({"A", "B"});
    const std::string path = PathOf("A");
    OpenAndEdit(1);
    const std::string foreign = form_.ProfileText("changed by somebody");
    WriteText(path, foreign);
    person_.answers = {Answer::No};
    EXPECT_FALSE(session_.Save());
    EXPECT_EQ(ReadText(path), foreign);
    person_.answers = {Answer::Yes, Answer::No};  // to the prompt, but not over the other's work
    EXPECT_FALSE(Pick(2));
    EXPECT_TRUE(Profile().ProfileChanged);
    person_.answers = {Answer::Yes};
    EXPECT_TRUE(session_.Save());

    session_.Editor().RowRenamed(2, "again");
    files_.Delete(path);
    EXPECT_TRUE(session_.Save());
    EXPECT_EQ(session_.Notices().at(0).text, "The file " + path + " had been deleted and was written anew.");
    EXPECT_PRED2(Has, ReadText(path), "again");

    files_.Delete(PathOf("B"));
    EXPECT_FALSE(Pick(2));
    EXPECT_EQ(Profile().Name, "A");
    EXPECT_EQ(strip_.captions.size(), 1U);
    files_.Delete(path);
    person_.answers = {Answer::Yes};
    session_.Delete();
    EXPECT_EQ(person_.lastPreset, Answer::No);
    EXPECT_TRUE(strip_.captions.empty() && screen_.rows.empty() && In(folders_.Profiles).empty());
    EXPECT_FALSE(Profile().IsOpen);
}

TEST_F(ProfileFilesTest, GroupsComeBackWithADocumentThatOthersDeletedAndDamageIsTold) {
    AddProfiles({"A"});
    const std::string groups = BoxGroupsPath(PathOf("A"));
    WriteText(groups, "<BoxGr");
    OpenAndEdit(1);
    EXPECT_PRED2(Has, session_.Notices().at(0).text, "The groups of this profile cannot be read");
    EXPECT_TRUE(session_.Save());
    EXPECT_EQ(ReadText(groups), "<BoxGr") << "nobody has set others";
    session_.Editor().SetGroups({{{"Q", {"Q2", "Q3"}, Takes::One}}});
    EXPECT_TRUE(session_.Save());
    EXPECT_TRUE(session_.Notices().empty());
    const std::string written = ReadText(groups);
    files_.Delete(groups);
    files_.Delete(PathOf("A"));
    EXPECT_TRUE(session_.Save());
    EXPECT_EQ(ReadText(groups), written);
}

TEST_F(ProfileFilesTest, LocatingASpecimenBringsNoDeletedDocumentBack) {
    AddProfiles({"A"});
    const std::string moved = folders_.ProfileImages + "moved.tif";
    files_.Move(folders_.ProfileImages + "A.tif", moved);
    OpenAndEdit(1);
    const app::Notice lost = session_.Notices().at(0);
    const std::string document = ReadText(PathOf("A"));
    files_.Delete(PathOf("A"));
    dialogs_.answers = {moved};
    lost.act();
    EXPECT_PRED2(Has, transcript_.Joined(), "Save the profile, which");
    EXPECT_FALSE(files_.FileExists(PathOf("A")));
    WriteText(PathOf("A"), document);
    session_.Open(PathOf("A"));
    int reads = 0;
    files_.refuse = [&](const std::string& name, const std::string& target) {
        reads += name == "read" && target == moved ? 1 : 0;
        return false;
    };
    dialogs_.answers = {moved};
    session_.Notices().at(0).act();
    files_.refuse = nullptr;
    EXPECT_EQ(reads, 2) << "for the page and for the strip";
    ASSERT_EQ(session_.Notices().size(), 1U) << "of another one, should the person have taken a wrong one";
    EXPECT_EQ(session_.Notices()[0].button, lost.button);
    EXPECT_PRED2(Has, ReadText(PathOf("A")), moved);
}

TEST_F(ProfileFilesTest, IsDuplicatedAndRenamedWithItsGroupsUnderFreeNames) {
    AddProfiles({"A", "B"});
    ASSERT_TRUE(Pick(1));
    session_.Editor().SetGroups({{{"Q", {"Q2", "Q3"}, Takes::One}}});
    ASSERT_TRUE(session_.Save());
    const std::string groups = ReadText(BoxGroupsPath(PathOf("A")));
    const auto files = [this] { return In(folders_.Profiles); };
    dialogs_.answers = {PathOf("B"), std::nullopt, PathOf("C")};
    const Names before = files();
    session_.Duplicate();
    EXPECT_PRED2(Has, transcript_.Joined(), "There is a profile " + PathOf("B") + " already");
    session_.Rename();
    EXPECT_EQ(files(), before);
    session_.Duplicate();
    EXPECT_EQ(Profile().Name, "C");
    EXPECT_FALSE(Profile().Active);
    EXPECT_EQ(Profile().BoxList, form_.boxes);
    EXPECT_PRED2(Has, ReadText(PathOf("C")), "Profile=\"C\"");
    EXPECT_EQ(ReadText(BoxGroupsPath(PathOf("C"))), groups);
    EXPECT_PRED2(Has, session_.Notices().at(0).text, "This copy is not active");

    const std::string document = ReadText(PathOf("C"));
    person_.answers = {Answer::No, Answer::No, Answer::Yes};
    dialogs_.answers = {PathOf("D"), PathOf("D"), PathOf("D")};
    for (const std::string& folder : {folders_.ProcessFinal, folders_.ProcessOut}) {
        resultsIn_ = folder;
        session_.Rename();
        EXPECT_EQ(person_.lastPreset, Answer::No);
        EXPECT_TRUE(files_.FileExists(PathOf("C")));
    }
    session_.Rename();
    EXPECT_EQ(ReadText(PathOf("D")), document);
    EXPECT_EQ(ReadText(BoxGroupsPath(PathOf("D"))), groups);
    EXPECT_EQ(files(),
              (Names{"A.groups.xml", "A.Tvp", "B.Tvp", "D.groups.xml", "D.Tvp", "Tavrene_Profiles.tif"}));
    EXPECT_EQ(Profile().CurrentProfile, 3);
    EXPECT_EQ(Logged().back(), "Renamed Profile: C to D");
}

TEST_F(ProfileFilesTest, ANameThatCouldNotBeGivenLeavesNoGroupsForAnotherProfile) {
    AddProfiles({"A"});
    ASSERT_TRUE(Pick(1));
    session_.Editor().SetGroups({{{"Q", {"Q2", "Q3"}, Takes::One}}});
    ASSERT_TRUE(session_.Save());
    const Names before = In(folders_.Profiles);
    dialogs_.answers = {PathOf("B"), PathOf("B")};
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "move" || (operation == "write" && path == PathOf("B"));
    };
    EXPECT_THROW(session_.Rename(), app::FileError);
    EXPECT_EQ(In(folders_.Profiles), before);
    EXPECT_THROW(session_.Duplicate(), app::FileError);
    EXPECT_EQ(In(folders_.Profiles), before);
    EXPECT_EQ(Profile().Path, PathOf("A"));
}

// Each write of a save in turn is cut off, once refused and once as if the program had died in it, with half
// of the neighbour written.
TEST_F(ProfileFilesTest, ASaveThatIsCutOffLeavesAWholeDocument) {
    AddProfiles({"A"});
    const std::string path = PathOf("A");
    OpenAndEdit(1);
    form_.height = 800;
    form_.SaveScan(folders_.ProfileImages + "A.tif", {});  // so that the strip is written as well
    bool reachedEnd = false;
    for (int cut = 1; !reachedEnd; ++cut) {
        ASSERT_LT(cut, 20);
        session_.Editor().RowRenamed(1, "edit " + std::to_string(cut));
        const std::string before = ReadText(path);
        int operation = 0;
        files_.refuse = [&](const std::string& name, const std::string& target) {
            if (name == "read" || name == "list" || ++operation != cut)
                return false;
            if (name == "write")
                WriteText(folders_.Profiles + ".tavrene-1-1.tmp", before.substr(0, 40) + target);
            return true;
        };
        try {
            EXPECT_TRUE(session_.Save());
        } catch (const app::FileError&) {
            EXPECT_EQ(ReadText(path), before);
            EXPECT_TRUE(Profile().ProfileChanged);
        }
        reachedEnd = operation < cut;
        files_.refuse = nullptr;
        const std::string now = ReadText(path);
        EXPECT_TRUE(now == before || now.find("\"edit " + std::to_string(cut) + "\"") != std::string::npos);
        EXPECT_EQ(ReadProfileContent(LoadProfileDocument(files_, path)).Boxes.size(), 6U);
        EXPECT_EQ(StripPages().size(), 1U);
        EXPECT_EQ(In(folders_.Profiles), (Names{"A.Tvp", "Tavrene_Profiles.tif"}));
    }
}

}  // namespace
}  // namespace tavrene::profiles
