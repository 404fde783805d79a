#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/Startup.h"
#include "app/WorkingFolders.h"
#include "support/FaultyFiles.h"
#include "support/MemoryStore.h"
#include "support/TempFolder.h"

namespace tavrene::app {
namespace {

class StartupTest : public ::testing::Test {
  protected:
    bool Start() {
        steps_.clear();
        return RunStartup(settings_, {store_, files_, [] { return true; },
                                      [this](Settings& settings) {
                                          steps_ += "dialog ";
                                          if (onDialog_)
                                              onDialog_(settings);
                                      },
                                      [this] { steps_ += "window "; }});
    }

    test::TempFolder work_;
    test::MemoryStore store_;
    test::FaultyFiles files_;
    Settings settings_;
    std::function<void(Settings&)> onDialog_;
    std::string steps_;
};

TEST_F(StartupTest, FillsAnEmptyStoreAndAsksForAFolder) {
    onDialog_ = [this](Settings& settings) { settings.WorkDir = work_.Path(); };
    EXPECT_TRUE(Start());
    EXPECT_EQ(steps_, "dialog window ");
    const std::map<std::string, std::string> expected = {
        {"BoxMinWidth", "16"},  {"BoxMaxWidth", "38"},  {"BoxMinHeight", "16"},
        {"BoxMaxHeight", "34"}, {"FillThreshold", "8"}, {"DisplayDuringProcess", "1"}};
    EXPECT_EQ(store_.values, expected);
    EXPECT_TRUE(settings_.DisplayDuringProcess);
    EXPECT_FALSE(settings_.ProcessSingle);
    for (const char* name : {"ProfileImages", "Profiles", "ProcessIn", "ProcessOut", "ProcessFinal",
                             "ProcessReject", "Temp", "Log"})
        EXPECT_TRUE(files_.FolderExists(work_.File(name))) << name;
}

TEST_F(StartupTest, ReadsStoredTexts) {
    struct Case {
        const char* stored;
        int held;
        const char* kept;
    };
    for (const Case& c : {Case{"0", 16, "16"}, Case{"abc", 16, "16"}, Case{"", 16, "16"},
                          Case{"12px", 12, "12px"}, Case{"200", 200, "200"}, Case{" -7", -7, " -7"},
                          Case{"99999", 32'767, "99999"}, Case{"12.5", 12, "12.5"}, Case{"0.4", 16, "16"},
                          Case{"inf", 16, "16"}, Case{"1e-400", 16, "16"}, Case{"1e400", 32'767, "1e400"}}) {
        store_.values = {{"WorkDir", work_.Path()}, {"BoxMinWidth", c.stored}};
        Start();
        EXPECT_EQ(settings_.BoxMinWidth, c.held) << c.stored;
        EXPECT_EQ(store_.values["BoxMinWidth"], c.kept);
        EXPECT_EQ(steps_, "window ");
    }
    for (const auto& [text, on] :
         {std::pair{"1", true}, {"2", false}, {"-1", false}, {"true", false}, {"1.0", true}}) {
        store_.values["ProcessSingle"] = text;
        Start();
        EXPECT_EQ(settings_.ProcessSingle, on) << text;
    }
}

TEST_F(StartupTest, AThresholdOfZeroTurnsTheDisplayOn) {
    store_.values = {{"WorkDir", work_.Path()}, {"FillThreshold", "0"}, {"DisplayDuringProcess", "0"}};
    Start();
    EXPECT_EQ(store_.values["FillThreshold"], "8");
    EXPECT_TRUE(settings_.DisplayDuringProcess);
    store_.values["DisplayDuringProcess"] = "0";
    Start();
    EXPECT_FALSE(settings_.DisplayDuringProcess);
    store_.values.erase("FillThreshold");
    store_.isReadOnly = true;
    Start();
    EXPECT_EQ(settings_.FillThreshold, 8);
    EXPECT_TRUE(settings_.DisplayDuringProcess) << "what was applied is in force, stored or not";
}

TEST_F(StartupTest, RemovesWhatAKilledInstanceWasWriting) {
    store_.values = {{"WorkDir", work_.Path()}};
    Start();
    const ::pid_t dead = ::fork();
    if (dead == 0)
        ::_exit(0);
    ::waitpid(dead, nullptr, 0);
    const auto temporary = [this](::pid_t writer) {
        return work_.File("ProcessOut/.tavrene-" + std::to_string(writer) + "-1.tmp");
    };
    for (const ::pid_t writer : {dead, ::getpid(), ::getppid()})
        test::WriteText(temporary(writer), "half");
    test::WriteText(work_.File("ProcessOut/a.xml"), "whole");
    Start();
    EXPECT_FALSE(files_.FileExists(temporary(dead)));
    EXPECT_FALSE(files_.FileExists(temporary(::getpid()))) << "this process has only begun";
    EXPECT_TRUE(files_.FileExists(temporary(::getppid())));
    EXPECT_TRUE(files_.FileExists(work_.File("ProcessOut/a.xml")));
}

TEST_F(StartupTest, OpensTheWindowWhateverBecomesOfTheFolder) {
    store_.values = {{"WorkDir", work_.File("gone")}};
    EXPECT_TRUE(Start());
    EXPECT_EQ(steps_, "dialog window ");

    // Folders made before the one that is refused stay; what they hold is left alone.
    store_.values = {{"WorkDir", work_.Path()}};
    files_.CreateFolder(work_.File("Profiles"));
    test::WriteText(work_.File("Profiles/a.Tvp"), "kept");
    files_.refuse = [this](const std::string& operation, const std::string& path) {
        return operation == "create" && path == work_.File("ProcessOut");
    };
    Start();
    EXPECT_EQ(steps_, "dialog window ");
    EXPECT_TRUE(files_.FolderExists(work_.File("ProcessIn")));
    EXPECT_FALSE(files_.FolderExists(work_.File("Temp")));
    EXPECT_EQ(test::ReadText(work_.File("Profiles/a.Tvp")), "kept");
}

}  // namespace
}  // namespace tavrene::app
