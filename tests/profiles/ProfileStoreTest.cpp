#include "imaging/TiffPages.h"
#include "profiles/OmrsOfBoxes.h"
#include "profiles/ProfileStore.h"
#include "profiles/XmlFile.h"
#include "support/DeskWorld.h"

namespace tavrene::profiles {
namespace {

using app::Answer;
using app::Panel;
using test::ReadText;
using test::TestForm;
using test::WriteText;
using Names = std::vector<std::string>;

class ProfileStoreTest : public test::DeskWorld {
  protected:
    void AddProfiles(const Names& names) {
        for (const std::string& name : names)
            AddSpecimenProfile(name, form_);
        store_.RebuildThumbnails();
        transcript_.Clear();
    }

    // Opens profile k and changes one box.
    void OpenAndEdit(int k) {
        EXPECT_TRUE(store_.ThumbnailSelected(k));
        editor_.RowRenamed(1, "edited");
        transcript_.Clear();
    }

    Names CreatedLogs() const {
        Names lines;
        for (const std::string& line : ProfileLog())
            if (!line.starts_with("Loaded Profile"))
                lines.push_back(line);
        return lines;
    }

    std::string StripFile() const { return folders_.Profiles + "Tavrene_Profiles.tif"; }

    std::vector<imaging::TiffPage> StripPages() const {
        return imaging::DecodeTiffPages(files_.Read(StripFile()));
    }

    TestForm form_ = TestForm::Grid(3, 2);
};

TEST_F(ProfileStoreTest, TurnsFoundBoxesIntoThePageFrame) {
    const std::vector<boxes::BoxRect> found = {{.L = 5, .T = 20, .R = 25, .B = 40}};
    const std::vector<OmrBox> omrs = OmrsOfBoxes(found, 1000);
    EXPECT_EQ(ComposeOmrs(omrs, 1),
              "<OMRs Count=\"1\">\r\n<OMR ID=\"1\" L=\"5\" T=\"960\" R=\"25\" B=\"980\" "
              "Name=\"Un-named-1\"/>\r\n</OMRs>\r\n");
}

TEST_F(ProfileStoreTest, LeavesTheStripFileAloneWithoutProfiles) {
    WriteText(StripFile(), "of another day");
    store_.RebuildThumbnails();
    EXPECT_EQ(transcript_.LinesOf("strip: "), Names{"0"});
    EXPECT_EQ(ReadText(StripFile()), "of another day");
}

TEST_F(ProfileStoreTest, CreatesAProfileFromABlankForm) {
    AddProfiles({"Beta"});
    const std::string image = folders_.ProfileImages + "blank & ä.tif";
    form_.SaveScan(image, {});
    ASSERT_TRUE(Create("Alpha.Tvp", image));

    std::string boxes;
    for (int id = 1; id <= 6; ++id) {
        const OmrBox& box = profile_.BoxList.at(static_cast<std::size_t>(id) - 1);
        EXPECT_NEAR(box.L, form_.boxes[static_cast<std::size_t>(id) - 1].L, 1);
        EXPECT_NEAR(box.T, form_.boxes[static_cast<std::size_t>(id) - 1].T, 1);
        boxes += "<OMR ID=\"" + std::to_string(id) + "\" L=\"" + std::to_string(box.L) + "\" T=\"" +
                 std::to_string(box.T) + "\" R=\"" + std::to_string(box.R) + "\" B=\"" +
                 std::to_string(box.B) + "\" Name=\"Un-named-" + std::to_string(id) + "\"/>";
    }
    EXPECT_EQ(ReadText(folders_.Profiles + "Alpha.Tvp"),
              "<Tavrene Profile=\"Alpha\" Image=\"" + folders_.ProfileImages +
                  "blank &amp; ä.tif\" DPI_X=\"200\" DPI_Y=\"200\" Active=\"1\"><OMRs Count=\"6\">" + boxes +
                  "</OMRs></Tavrene>");
    EXPECT_EQ(CreatedLogs(),
              (Names{"New Profile: <Alpha> 6 OMR Boxes Identified.", "Created Profile: Alpha"}));
    EXPECT_TRUE(profile_.IsOpen && profile_.Active && !profile_.ProfileChanged);
    EXPECT_EQ(desk_.captions, (Names{"Profile 1 of 2", "Profile 2 of 2"}));
    EXPECT_EQ(desk_.selectedThumbnail, 1);
    EXPECT_EQ(profile_.CurrentProfile, 1);
    EXPECT_EQ(StripPages().size(), 2U);
    EXPECT_EQ(desk_.nextGroup, 7);
    EXPECT_EQ(transcript_.LinesOf("view: "), (Names{"clear", "zoom 100", "show blank & ä.tif"}));
    EXPECT_EQ(person_.PanelText(Panel::File), "Profiles:2, Active:2");

    const std::string rejected = folders_.ProfileImages + "grey.tif";
    WriteText(rejected, "no image");
    ASSERT_FALSE(Create("Gamma.Tvp", rejected));
    EXPECT_FALSE(files_.FileExists(folders_.Profiles + "Gamma.Tvp"));
    files_.refuse = [](const std::string& operation, const std::string& path) {
        return operation == "write" && path.ends_with(".Tvp");
    };
    EXPECT_THROW(Create("Gamma.Tvp", image), app::FileError);
    EXPECT_EQ(profile_.Name, "Alpha");
    EXPECT_EQ(desk_.rows.size(), 6U);
}

TEST_F(ProfileStoreTest, OpensAProfileAndFitsItsImage) {
    form_.width = 2000;
    AddProfiles({"Wide"});
    form_.width = 750;
    AddProfiles({"Fits"});
    EXPECT_EQ(store_.ThumbnailHover(2), "Wide");
    EXPECT_EQ(store_.ThumbnailHover(3), "");
    ASSERT_TRUE(store_.ThumbnailSelected(1));
    EXPECT_EQ(screen_.Zoom(), 100);
    transcript_.Clear();
    ASSERT_TRUE(store_.ThumbnailSelected(2));
    EXPECT_EQ(transcript_.LinesOf("panel Message: "), Names{"Profile [Wide], Image [Wide.tif]"});
    EXPECT_EQ(transcript_.LinesOf("panel ElapsedTime: "), Names{"OMRs:6"});
    EXPECT_EQ(ProfileLog().back(), "Loaded Profile: Wide");
    EXPECT_EQ(transcript_.LinesOf("view: zoom ").at(1), "96");
    EXPECT_EQ(transcript_.LinesOf("view: zoom ").at(2), "92.16");
    EXPECT_LE(2000 * screen_.Zoom() / 100, 750);
    EXPECT_GT(2000 * screen_.Zoom() / 96, 750);
    EXPECT_FALSE(store_.ThumbnailSelected(0));
    EXPECT_EQ(profile_.Name, "Wide");
}

TEST_F(ProfileStoreTest, SavesSixBoxesLessTwoPlusOne) {
    AddProfiles({"Form"});
    OpenAndEdit(1);
    for (const int number : {2, 5}) {
        editor_.RowClicked(number);
        editor_.DeleteBox();
    }
    Draw({300, 310, 20, 22});
    profile_.Active = false;
    ASSERT_TRUE(store_.Save());
    const std::string text = ReadText(folders_.Profiles + "Form.Tvp");
    EXPECT_NE(text.find("Active=\"0\"><OMRs Count=\"5\"><OMR ID=\"1\" L=\"60\" T=\"70\" R=\"84\" B=\"94\" "
                        "Name=\"edited\"/><OMR ID=\"2\" L=\"168\""),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("<OMR ID=\"5\" L=\"300\" T=\"310\" R=\"320\" B=\"332\" Name=\"Un-named-7\"/></OMRs>"),
              std::string::npos)
        << text;
    EXPECT_EQ(profile_.BoxList.size(), 7U);
    EXPECT_FALSE(profile_.ProfileChanged);
    EXPECT_EQ(person_.PanelText(Panel::File), "Profiles:1, Active:0");
    ASSERT_TRUE(store_.ThumbnailSelected(1));
    EXPECT_EQ(profile_.BoxList.size(), 5U);
    EXPECT_EQ(profile_.NextBoxId, 6);
}

TEST_F(ProfileStoreTest, AsksBeforeAChangedProfileIsLeft) {
    AddProfiles({"A", "B"});
    const std::string path = folders_.Profiles + "A.Tvp";
    const std::string before = ReadText(path);
    OpenAndEdit(1);
    person_.answers = {Answer::Cancel};
    EXPECT_FALSE(store_.ThumbnailSelected(2));
    EXPECT_EQ(transcript_.LinesOf("ask: "), Names{"Save changes to Profile <" + path + ">?"});
    EXPECT_EQ(desk_.selectedThumbnail, 1);
    EXPECT_TRUE(profile_.ProfileChanged && profile_.BoxList[0].Name == "edited");

    person_.answers = {Answer::No};
    EXPECT_TRUE(store_.ThumbnailSelected(2));
    EXPECT_EQ(ReadText(path), before);
    EXPECT_EQ(profile_.Name, "B");

    OpenAndEdit(1);
    person_.answers = {Answer::Yes};
    EXPECT_TRUE(store_.ThumbnailSelected(2));
    EXPECT_NE(ReadText(path).find("edited"), std::string::npos);
    EXPECT_EQ(CreatedLogs(), Names{"Saved Profile: A"});
    EXPECT_TRUE(store_.MayLeave());
}

TEST_F(ProfileStoreTest, DeletesAfterAQuestionAndClosesTheGap) {
    AddProfiles({"1", "2", "3", "4", "5"});
    person_.answers = {};
    EXPECT_FALSE(store_.Delete());
    EXPECT_FALSE(store_.Save());
    store_.ThumbnailSelected(3);
    person_.answers = {Answer::No, Answer::Yes};
    EXPECT_FALSE(store_.Delete());
    EXPECT_TRUE(store_.Delete());
    EXPECT_EQ(transcript_.LinesOf("ask: ").back(), "Delete Profile " + folders_.Profiles + "3.Tvp");
    EXPECT_EQ(CreatedLogs(), Names{"Deleted Profile: 3"});
    EXPECT_EQ(desk_.captions.size(), 4U);
    EXPECT_EQ(store_.ThumbnailHover(3), "4");
    EXPECT_EQ(StripPages().size(), 4U);
    EXPECT_FALSE(profile_.IsOpen);
    EXPECT_TRUE(desk_.rows.empty());
    EXPECT_EQ(profiles_.size(), 4U);
}

TEST_F(ProfileStoreTest, TakesOverThePagesOfUnchangedSpecimens) {
    AddProfiles({"A", "B", "C"});
    const std::vector<imaging::TiffPage> pages = StripPages();
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0].picture.Width(), 140);
    int reads = 0;
    int writes = 0;
    files_.refuse = [&](const std::string& operation, const std::string& path) {
        reads += operation == "read" && path.starts_with(folders_.ProfileImages) ? 1 : 0;
        writes += operation == "write" && path == StripFile() ? 1 : 0;
        return false;
    };
    store_.RebuildThumbnails();
    EXPECT_EQ(reads + writes, 0);
    form_.height = 900;
    form_.SaveScan(folders_.ProfileImages + "B.tif", {});
    store_.RebuildThumbnails();
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(StripPages()[1].picture.Height(), 210);

    ProfileStore next({files_, person_, log_, clock_, folders_}, profile_, profiles_, editor_, desktop_);
    next.RebuildThumbnails();  // a new start of the program takes the pages from the file
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(writes, 1);
    files_.Delete(StripFile());
    next.RebuildThumbnails();
    EXPECT_EQ(StripPages().size(), 3U);
}

TEST_F(ProfileStoreTest, KeepsDamagedProfilesAndLostSpecimensInTheStrip) {
    AddProfiles({"A", "B", "C"});
    files_.Delete(folders_.ProfileImages + "A.tif");
    std::string damaged = ReadText(folders_.Profiles + "B.Tvp");
    damaged.replace(damaged.find(" DPI_Y=\"200\""), 12, "");
    WriteText(folders_.Profiles + "B.Tvp", damaged);
    WriteText(folders_.Profiles + "E.Tvp", "<Tavrene");
    const std::size_t before = CreatedLogs().size();
    store_.RebuildThumbnails();
    EXPECT_EQ(desk_.captions.size(), 4U);
    EXPECT_EQ(StripPages().size(), 4U);
    EXPECT_EQ(profiles_.size(), 2U);
    const Names log = CreatedLogs();
    EXPECT_EQ(log.size() - before, 3U) << ::testing::PrintToString(log);

    ASSERT_TRUE(store_.ThumbnailSelected(1));
    EXPECT_TRUE(profile_.IsOpen);
    EXPECT_EQ(desk_.rows.size(), 6U);
    EXPECT_EQ(store_.TakeNotes(),
              Names{"The specimen image " + folders_.ProfileImages + "A.tif is not there any more."});
    transcript_.Clear();
    try {
        store_.ThumbnailSelected(2);
        ADD_FAILURE();
    } catch (const DocumentError& error) {
        EXPECT_EQ(std::string(error.what()), "The profile " + folders_.Profiles +
                                                 "B.Tvp cannot be opened: the attribute DPI_Y of Tavrene is "
                                                 "missing.");
    }
    EXPECT_EQ(transcript_.LinesOf("view: ").back(), "show B.tif");
    EXPECT_FALSE(store_.Save());
    EXPECT_THROW(store_.ThumbnailSelected(4), DocumentError);
    person_.answers = {Answer::Yes};
    EXPECT_TRUE(store_.Delete());
    EXPECT_EQ(In(folders_.Profiles), (Names{"A.Tvp", "B.Tvp", "C.Tvp", "Tavrene_Profiles.tif"}));
}

TEST_F(ProfileStoreTest, AnUnwritableNameIsShownAndNothingIsTouched) {
    AddProfiles({"A"});
    OpenAndEdit(1);
    editor_.RowRenamed(4, "R & D");
    editor_.RowClicked(2);
    editor_.DeleteBox();
    const std::string before = ReadText(folders_.Profiles + "A.Tvp");
    const std::vector<OmrBox> boxes = profile_.BoxList;
    try {
        store_.Save();
        ADD_FAILURE();
    } catch (const DocumentError& error) {
        EXPECT_NE(std::string(error.what()).find("box 4 (R & D)"), std::string::npos) << error.what();
    }
    EXPECT_EQ(desk_.selectedRow, 4);
    EXPECT_EQ(ReadText(folders_.Profiles + "A.Tvp"), before);
    EXPECT_EQ(profile_.BoxList, boxes);
    EXPECT_TRUE(profile_.ProfileChanged);
    editor_.RowRenamed(4, "R and D");
    EXPECT_TRUE(store_.Save());
}

TEST_F(ProfileStoreTest, MindsWhatOthersDoToTheFile) {
    AddProfiles({"A", "B"});
    const std::string path = folders_.Profiles + "A.Tvp";
    OpenAndEdit(1);
    const std::string foreign = form_.ProfileText("changed by somebody");
    WriteText(path, foreign);
    person_.answers = {Answer::No};
    EXPECT_FALSE(store_.Save());
    EXPECT_EQ(ReadText(path), foreign);
    person_.answers = {Answer::Yes, Answer::No};  // to the prompt, but not over the other's work
    EXPECT_FALSE(store_.ThumbnailSelected(2));
    EXPECT_TRUE(profile_.ProfileChanged);
    person_.answers = {Answer::Yes};
    EXPECT_TRUE(store_.Save());

    editor_.RowRenamed(2, "again");
    files_.Delete(path);
    EXPECT_TRUE(store_.Save());
    EXPECT_EQ(store_.TakeNotes(), Names{"The file " + path + " had been deleted and was written anew."});
    EXPECT_NE(ReadText(path).find("again"), std::string::npos);

    files_.Delete(folders_.Profiles + "B.Tvp");
    EXPECT_FALSE(store_.ThumbnailSelected(2));
    EXPECT_EQ(profile_.Name, "A");
    EXPECT_EQ(desk_.captions.size(), 1U);
    files_.Delete(path);
    person_.answers = {Answer::Yes};
    EXPECT_TRUE(store_.Delete());
    EXPECT_TRUE(desk_.captions.empty());
    EXPECT_TRUE(In(folders_.Profiles).empty());
}

// Each write of a save in turn is cut off, once refused and once as if the program had died in it, with half
// of the neighbour written.
TEST_F(ProfileStoreTest, ASaveThatIsCutOffLeavesAWholeDocument) {
    AddProfiles({"A"});
    const std::string path = folders_.Profiles + "A.Tvp";
    OpenAndEdit(1);
    const std::string old = ReadText(path);
    form_.height = 800;
    form_.SaveScan(folders_.ProfileImages + "A.tif", {});  // so that the strip is written as well
    bool reachedEnd = false;
    for (int cut = 1; !reachedEnd; ++cut) {
        ASSERT_LT(cut, 20);
        editor_.RowRenamed(1, "edit " + std::to_string(cut));
        const std::string before = ReadText(path);
        int operation = 0;
        files_.refuse = [&](const std::string& name, const std::string& target) {
            const bool changes = name == "write" || name == "append" || name == "move" || name == "delete";
            if (!changes || ++operation != cut)
                return false;
            if (name == "write")
                WriteText(folders_.Profiles + ".tavrene-1-1.tmp", before.substr(0, 40) + target);
            return true;
        };
        try {
            EXPECT_TRUE(store_.Save());
        } catch (const app::FileError&) {
            EXPECT_EQ(ReadText(path), before);
            EXPECT_TRUE(profile_.ProfileChanged);
        }
        reachedEnd = operation < cut;
        files_.refuse = nullptr;
        const std::string now = ReadText(path);
        EXPECT_TRUE(now == before || now.find("\"edit " + std::to_string(cut) + "\"") != std::string::npos);
        EXPECT_EQ(ReadProfileContent(LoadProfileDocument(files_, path)).Boxes.size(), 6U);
        EXPECT_EQ(StripPages().size(), 1U);
        EXPECT_EQ(In(folders_.Profiles), (Names{"A.Tvp", "Tavrene_Profiles.tif"}));
    }
    EXPECT_NE(ReadText(path), old);
}

TEST_F(ProfileStoreTest, WorksWithTheCountThatTheDocumentHas) {
    AddProfiles({"A"});
    std::string text = ReadText(folders_.Profiles + "A.Tvp");
    WriteText(folders_.Profiles + "A.Tvp", text.replace(text.find("Count=\"6\""), 9, "Count=\"3\""));
    store_.RebuildThumbnails();
    store_.ThumbnailSelected(1);
    EXPECT_EQ(person_.PanelText(Panel::ElapsedTime), "OMRs:3");
    EXPECT_EQ(desk_.rows.size(), 6U);
    Draw({300, 300, 20, 20});
    EXPECT_EQ(profile_.Count, 4);
    EXPECT_EQ(profile_.BoxList[3].L, 60);  // no box gave its place to the drawn one
    EXPECT_TRUE(store_.Save());
    EXPECT_NE(ReadText(folders_.Profiles + "A.Tvp").find("Count=\"4\""), std::string::npos);
}

TEST_F(ProfileStoreTest, AFailingLogCostsOnlyItsLines) {
    AddProfiles({"A"});
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "append"; };
    OpenAndEdit(1);
    EXPECT_TRUE(store_.Save());
    EXPECT_EQ(store_.TakeNotes(), Names{"The profile log could not be written."});
}

}  // namespace
}  // namespace tavrene::profiles
