#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <regex>
#include <sstream>
#include <thread>

#include "app/FolderLock.h"
#include "batch/Batch.h"
#include "batch/FolderContent.h"
#include "imaging/TiffPages.h"
#include "painter/ImageFiles.h"
#include "review/DoubtFinder.h"
#include "support/Faults.h"
#include "support/RunWorld.h"
#include "support/SourceFolder.h"

namespace tavrene::batch {
namespace {

using test::ContentOf;
using test::Has;
using test::ReadText;
using test::TestForm;
using test::WriteText;

// The program on a working folder of its own beside the one that a window works on.
class BatchTest : public test::RunWorld {
  protected:
    BatchTest() {
        WriteText(settings_file_, "[Common]\nFillThreshold=12\nProcessSingle=1\nWorkDir=/nowhere\n");
        settings_.FillThreshold = 12;
        options_.folder = other_.Path();
        options_.settings = settings_file_;
    }

    /// The same files in the folder of the program.
    void CopyFolder() {
        std::filesystem::copy(work_.Path(), other_.Path(), std::filesystem::copy_options::recursive);
    }

    void FillFolder() {
        AddSpecimenProfile("Form", form_);
        AddSpecimenProfile("Idle", TestForm::Grid(4, 2), false);
        form_.SaveScan(folders_.ProcessIn + "b.tif", {.checked = {1, 4}});
        form_.SaveScan(folders_.ProcessIn + "A.tif", {.checked = {2}, .dx = 7, .dy = -5});
        form_.SaveScan(folders_.ProcessIn + "old.tif", {.checked = {3}});
        form_.SaveScan(folders_.ProcessOut + "old.tif", {.checked = {5}});
        WriteText(folders_.ProcessOut + "old.xml", "<Tavrene Image=\"old.tif\"><OMRs/></Tavrene>");
        TestForm::Grid(1, 1).SaveScan(folders_.ProcessIn + "strange.tif", {});
        WriteText(folders_.ProcessIn + "damaged.png", "no picture");
        WriteText(folders_.ProcessIn + "letter.doc", "no image");
        CopyFolder();
    }

    Exit Run() { return RunBatch(options_, {out_, messages_, stop_}); }

    test::TempFolder other_;
    test::TempFolder home_;
    std::string settings_file_ = home_.File("settings.ini");
    TestForm form_ = TestForm::Grid(3, 4);
    Options options_;
    std::ostringstream out_;
    std::ostringstream messages_;
    std::atomic<bool> stop_ = false;
};

TEST_F(BatchTest, MakesTheSameFolderAsTheWindow) {
    for (const auto& [precise, jobs] : {std::pair{false, 1}, {false, 3}, {true, 2}}) {
        SCOPED_TRACE(jobs);
        for (const std::string& folder : {work_.Path(), other_.Path()})
            for (const auto& entry : std::filesystem::directory_iterator(folder))
                std::filesystem::remove_all(entry);
        ASSERT_TRUE(app::CreateWorkingFolders(files_, work_.Path()));
        FillFolder();
        reading_.preciseAlignment = options_.precise = precise;
        options_.jobs = jobs;
        Process();
        EXPECT_EQ(Run(), Exit::SomeLeft);
        EXPECT_EQ(ContentOf(other_.Path()), ContentOf(work_.Path()));
        EXPECT_EQ(ContentOf(other_.Path()).size(), 16U)
            << "6 scans, 3 results, 2 logs, temp2 and 4 for profiles";
        EXPECT_PRED2(Has, out_.str(), " Sec. 3 read, 1 not recognised, 2 refused, 0 not written\n");
        EXPECT_PRED2(Has, messages_.str(), "damaged.png: Image not in bitmap format\n");
        out_.str("");
    }
    EXPECT_EQ(
        ReadText(settings_file_),
        "[Common]\nFillThreshold=12\nProcessSingle=1\nWorkDir=/nowhere\nBoxMinWidth=16\nBoxMaxWidth=38\n"
        "BoxMinHeight=16\nBoxMaxHeight=34\n");
}

TEST_F(BatchTest, TellsOfEachFileInJsonAndWritesTables) {
    AddProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a\"\t.tif", {.checked = {1, 4}});
    const auto page = [this](int mark) {
        return imaging::TiffPage{samples::ToBilevel(form_.Paint({.checked = {mark}})), {}};
    };
    files_.Write(folders_.ProcessIn + "b.tif",
                 imaging::EncodeTiffPages(std::array{page(1), page(2), page(3)}), app::Keep::AsScratch);
    CopyFolder();
    options_.json = true;
    options_.exportTo = home_.File("tables");
    EXPECT_EQ(Run(), Exit::Done);
    EXPECT_EQ(out_.str().substr(0, out_.str().find("\"seconds\"")),
              "{\"event\":\"begin\",\"files\":2}\n"
              "{\"event\":\"file\",\"name\":\"a\\\"\\u0009.tif\",\"outcome\":\"read\","
              "\"reason\":\"classified as [Form] with confidence [100.00]\",\"further pages\":0}\n"
              "{\"event\":\"file\",\"name\":\"b.tif\",\"outcome\":\"read\","
              "\"reason\":\"classified as [Form] with confidence [100.00]\",\"further pages\":2}\n"
              "{\"event\":\"end\",\"files\":2,");
    EXPECT_PRED2(Has, out_.str(),
                 "\"read\":2,\"not recognised\":0,\"refused\":0,\"not written\":0,\"stopped\":false}\n");
    EXPECT_EQ(messages_.str(), "b.tif: 2 further pages were not looked at\n");
    EXPECT_PRED2(Has, ReadText(home_.File("tables/Form.csv")), "\r\nb.tif,Form,0,100,");
}

TEST_F(BatchTest, TellsOfASpecimenThatPreciseAlignmentMisses) {
    AddSpecimenProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {1}});
    CopyFolder();
    files_.Delete(folders_.ProfileImages + "Form.tif");
    options_.precise = true;
    EXPECT_EQ(Run(), Exit::Done);
    EXPECT_EQ(messages_.str(),
              "tavrene-batch: The specimen image of profile Form is missing or cannot be read: Precise "
              "Alignment knows its forms by their boxes alone.\n");
}

TEST_F(BatchTest, SaysWhyItDoesNothing) {
    struct Case {
        std::string folder;
        std::string settings;
        bool isHeld;
        Exit exit;
        std::string message;
    };
    AddProfile("Idle", form_);
    WriteText(folders_.Profiles + "Idle.Tvp", form_.ProfileText("Idle", false));
    form_.SaveScan(folders_.ProcessIn + "a.tif", {});
    CopyFolder();
    const Case cases[] = {
        {home_.Path(), settings_file_, false, Exit::Failed, "no working folder: it has no folder Profiles"},
        {other_.File("none"), settings_file_, false, Exit::Failed, "it has no folder Profiles"},
        {other_.Path(), home_.File("none.ini"), false, Exit::Failed, "there is no file "},
        {other_.Path(), settings_file_, true, Exit::InUse, "Another program works on "},
        {other_.Path(), "", false, Exit::Failed, "None of your Profiles are active!"}};
    ::setenv("XDG_CONFIG_HOME", home_.Path().c_str(), 1);
    for (const Case& each : cases) {
        SCOPED_TRACE(each.message);
        app::FolderLock window(other_.Path());
        EXPECT_TRUE(!each.isHeld || window.Take(app::FolderLock::Use::Alone));
        options_.folder = each.folder;
        options_.settings = each.settings;
        messages_.str("");
        EXPECT_EQ(Run(), each.exit);
        EXPECT_PRED2(Has, messages_.str(), each.message);
    }
    EXPECT_EQ(files_.List(other_.File("ProcessIn"), "*"), std::vector<std::string>{"a.tif"});
    EXPECT_EQ(files_.ListFolders(home_.Path()), std::vector<std::string>());
}

TEST_F(BatchTest, FinishesThePageAtHandWhenItIsStopped) {
    FillFolder();
    stop_ = true;
    EXPECT_EQ(Run(), Exit::Stopped);
    EXPECT_EQ(files_.List(other_.File("ProcessIn"), "*").size(), 5U);
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessOut/A.xml")));
    EXPECT_PRED2(Has, ContentOf(other_.Path())["/Log/TavreneBoxes-Process"],
                 "A.tif: Processing complete\r\nProcessing interrupted by user\r\nProcessed 1 Files");
    stop_ = false;
    Run();
    EXPECT_EQ(files_.List(other_.File("ProcessIn"), "*"), std::vector<std::string>());
}

// Profiles and scans of many kinds, two of which share one result.
TEST_F(BatchTest, EightClaimersMakeTheDocumentsOfOneProgram) {
    const std::filesystem::path samples = test::SourceFolder() + "/samples";
    for (const test::TempFolder* const folder : {&work_, &other_}) {
        ASSERT_TRUE(app::CreateWorkingFolders(files_, folder->Path()));
        for (const auto& [from, to] : {std::pair{"profiles", "Profiles"}, {"scans", "ProcessIn"}})
            std::filesystem::copy(samples / from, folder->File(to), std::filesystem::copy_options::recursive);
        std::filesystem::copy(samples / "scans/staff-02-dots.png", folder->File("ProcessIn/twin.png"));
        std::filesystem::copy(samples / "scans/patient-01.tif", folder->File("ProcessIn/twin.tif"));
    }
    options_.groups = true;
    options_.folder = work_.Path();
    options_.exportTo = home_.File("tables of one");
    EXPECT_EQ(Run(), Exit::SomeLeft) << "one has more than two colours, one has another extension";

    options_.folder = other_.Path();
    options_.exportTo = home_.File("tables");
    options_.patience = 60;
    std::array<std::ostringstream, 8> told;
    {
        std::vector<std::jthread> claimers;
        for (std::ostringstream& out : told)
            claimers.emplace_back([&] { RunBatch(options_, {out, out, stop_}); });
    }
    auto expected = ContentOf(work_.Path());
    auto content = ContentOf(other_.Path());
    for (auto* const each : {&expected, &content})
        std::erase_if(*each, [](const auto& file) {
            return file.first.starts_with("/Log/") || file.first.starts_with("/Temp/");
        });
    EXPECT_EQ(content, expected);
    EXPECT_PRED2(Has, content["/ProcessOut/twin.xml"], "Image=\"twin.tif\"");
    EXPECT_EQ(content.size(), 60U) << "33 scans, 25 results, 2 profiles";
    EXPECT_FALSE(files_.FolderExists(other_.File("ProcessIn/.claims")));
    for (const char* const name : {"PatientQuestionnaire.csv", "StaffSurvey.csv"}) {
        const std::regex date("[-0-9]+ [0-9:]{8}");
        const auto tableIn = [&](const std::string& folder) {
            return std::regex_replace(ReadText(home_.File(folder + "/" + name)), date, "");
        };
        EXPECT_EQ(tableIn("tables"), tableIn("tables of one"));
        EXPECT_PRED2(Has, tableIn("tables"), "|") << "several boxes of a group in one cell";
    }
}

TEST_F(BatchTest, CountsDoubtsForAWindowThatReadsAlike) {
    AddSpecimenProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {1, 4}});
    CopyFolder();
    profiles_ = profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
    const auto isKnown = [&](const recognition::ReadingOptions& window) {
        reading_ = window;
        const app::WorkingFolders folders = app::PathsUnder(other_.Path());
        review::DoubtFinder finder(files_, settings_, folders, profiles_, &reader_);
        finder.Begin();
        const std::string document = folders.ProcessOut + "a.xml";
        return finder.Known({"a.xml", files_.Fingerprint(document), folders.ProcessOut + "a.tif", "Form"}) !=
               nullptr;
    };
    options_.doubts = true;
    EXPECT_EQ(Run(), Exit::Done);
    EXPECT_TRUE(isKnown({.secondOpinion = true})) << "which is how the window begins";
    EXPECT_FALSE(isKnown({}));
    EXPECT_FALSE(isKnown({.preciseAlignment = true}));
    WriteText(settings_file_, ReadText(settings_file_) + "[Window]\nPreciseAlignment=1\n");
    for (const bool isPrecise : {false, true}) {
        std::filesystem::rename(other_.File("ProcessOut/a.tif"), other_.File("ProcessIn/a.tif"));
        options_.precise = isPrecise;
        EXPECT_EQ(Run(), Exit::Done);
        EXPECT_EQ(isKnown({.preciseAlignment = true}), isPrecise);
    }
}

TEST_F(BatchTest, ScansThatCannotBeClaimedAreNotTakenForDone) {
    AddProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {});
    CopyFolder();
    WriteText(other_.File("ProcessIn/.claims"), "where the claims would be");
    options_.patience = 60;
    EXPECT_EQ(Run(), Exit::SomeLeft);
    EXPECT_PRED2(Has, messages_.str(), "ProcessIn/ that cannot be claimed: Not a directory");
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessIn/a.tif")));
    std::filesystem::remove(other_.File("ProcessIn/.claims"));
    EXPECT_EQ(Run(), Exit::Done);
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessOut/a.xml")));
}

TEST_F(BatchTest, ScansInClaimsOfADeadProgramAreToldWithoutClaiming) {
    AddProfile("Form", form_);
    CopyFolder();
    const std::string claim = other_.File("ProcessIn/.claims/1s-host-7/");
    std::filesystem::create_directories(claim);
    form_.SaveScan(claim + "a.tif", {});
    EXPECT_EQ(Run(), Exit::SomeLeft);
    EXPECT_PRED2(Has, messages_.str(), "1 scan lies in claims of programs that were killed.");
    options_.patience = 1;
    EXPECT_EQ(Run(), Exit::Done);
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessOut/a.xml")));
}

TEST_F(BatchTest, WhereNoTablesCanBeWrittenIsToldBeforeTheFirstPage) {
    AddProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {});
    CopyFolder();
    options_.exportTo = settings_file_;
    EXPECT_EQ(Run(), Exit::Failed);
    EXPECT_PRED2(Has, messages_.str(), "Cannot create ");
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessIn/a.tif")));
}

// Only the waiting itself needs the clock; which files it takes is tested below.
TEST_F(BatchTest, WatchesUntilItIsStopped) {
    AddProfile("Form", form_);
    form_.SaveScan(folders_.ProcessIn + "a.tif", {});
    CopyFolder();
    options_.watch = true;
    std::jthread batch([this] { EXPECT_EQ(Run(), Exit::Done); });
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!files_.FileExists(other_.File("ProcessOut/a.xml")) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_TRUE(files_.FileExists(other_.File("ProcessOut/a.xml")));
    stop_ = true;
    WriteText(other_.File("ProcessIn/wakes it"), "");
}

}  // namespace
}  // namespace tavrene::batch
