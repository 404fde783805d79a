#include <QAction>
#include <atomic>
#include <filesystem>
#include <sstream>

#include "batch/Batch.h"
#include "batch/FolderContent.h"
#include "support/SourceFolder.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;

// Runs with all cores in the real window.
using AllCoresTest = test::DeskWindow;

TEST_F(AllCoresTest, TheToggleIsOffAtFirstIsKeptAndStopEndsARunBehindThePageAtHand) {
    const auto form = test::TestForm::Grid(2, 3);
    AddProfile("Form", form);
    for (int k = 1; k <= 8; ++k)
        form.SaveScan(folders_.ProcessIn + std::to_string(k) + ".tif", {.checked = {1 + k % 6}});
    Open();
    EXPECT_FALSE(Find<QAction>(*window_, "UseAllCores").isChecked());
    Find<QAction>(*window_, "UseAllCores").trigger();
    Open();
    EXPECT_TRUE(Find<QAction>(*window_, "UseAllCores").isChecked());
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    QTimer::singleShot(0, window_.get(), [this] { Find<QAction>(*window_, "Stop").trigger(); });
    Click("Process");
    EXPECT_EQ(dialogs.shown, std::vector<std::string>{"Process interrupted by user"});
    EXPECT_EQ(In(folders_.ProcessOut), (std::vector<std::string>{"1.tif", "1.xml"}));
    Click("Process");
    EXPECT_EQ(In(folders_.ProcessOut).size(), 16U);
    EXPECT_EQ(Panel("ElapsedTime").substr(0, 7), "7 Files");
}

// The same scans through the window and through the program without one.
TEST_F(AllCoresTest, FoldersAndLogsAreThoseOfTheProgramWithoutAWindow) {
    const std::string samples = test::SourceFolder() + "/samples/";
    const test::TempFolder other;
    const auto fill = [&](const std::string& workDir) {
        ASSERT_TRUE(app::CreateWorkingFolders(files_, workDir));
        std::filesystem::copy(samples + "profiles", workDir + "/Profiles");
        std::filesystem::copy(samples + "scans", workDir + "/ProcessIn");
    };
    settings_.DisplayDuringProcess = false;
    fill(work_.Path());
    Open();
    Find<QAction>(*window_, "UseAllCores").trigger();
    Click("Process");
    // The strip and the lines about profiles come of the window's opening, what is known of doubts is for
    // review.
    const auto contentOf = [](const std::string& workDir) {
        auto content = test::ContentOf(workDir);
        for (const char* const ofWindow :
             {"/Log/TavreneBoxes-Profile", "/Profiles/Tavrene_Profiles.tif", "/Temp/doubts.txt"})
            content.erase(ofWindow);
        return content;
    };
    const auto window = contentOf(work_.Path());
    test::WriteText(config_.File("batch.ini"), "[Common]\nFillThreshold=8\n");
    for (const int jobs : {1, 2}) {
        for (const auto& folder : std::filesystem::directory_iterator(other.Path()))
            std::filesystem::remove_all(folder);
        fill(other.Path());
        std::ostringstream out;
        const std::atomic<bool> stop = false;
        batch::Options options;
        options.folder = other.Path();
        options.settings = config_.File("batch.ini");
        options.jobs = jobs;
        batch::RunBatch(options, {out, out, stop});
        const auto batch = contentOf(other.Path());
        EXPECT_EQ(batch.size(), window.size());
        for (const auto& [name, content] : window)
            EXPECT_TRUE(batch.contains(name) && batch.at(name) == content) << name;
    }
    EXPECT_TRUE(files_.FileExists(folders_.ProcessOut + "staff-01.xml"));
}

}  // namespace
}  // namespace tavrene::ui
