#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/FakeClock.h"
#include "support/FakeOperator.h"
#include "support/FaultyFiles.h"
#include "ui/commands/CommandGate.h"

namespace tavrene::commands {
namespace {

class CommandGateTest : public testing::Test {
  protected:
    // What a prompt does before it lets the command through.
    std::function<bool()> Prompt(const char* name, const bool& passes) {
        return [this, name, &passes] {
            transcript_.Add(name);
            return passes;
        };
    }

    test::Transcript transcript_;
    test::FakeOperator person_{transcript_};
    test::FaultyFiles files_;
    test::FakeClock clock_;
    app::ActivityLog log_{files_, clock_, person_, "nowhere"};
    Mode mode_ = Mode::Profile;
    bool profilePasses_ = true;
    bool formPasses_ = true;
    CommandGate gate_{{person_, log_, [this] { return mode_; }, Prompt("profile?", profilePasses_),
                       Prompt("form?", formPasses_)}};
};

TEST_F(CommandGateTest, AsksFirstAndRunsUnlessAPromptIsCancelled) {
    const auto run = [this](Command command) {
        transcript_.Clear();
        gate_.SetHandler(command, [this] { transcript_.Add("runs"); });
        gate_.Run(command);
        return transcript_.Joined();
    };
    EXPECT_EQ(run(Command::ZoomIn), "runs");
    EXPECT_EQ(run(Command::Process), "profile? | form? | runs");
    EXPECT_EQ(run(Command::Exit), "form? | profile? | runs");
    EXPECT_EQ(run(Command::AcceptForm), "") << "there is no form";
    formPasses_ = false;
    EXPECT_EQ(run(Command::New), "profile? | runs");
    EXPECT_EQ(run(Command::Process), "profile? | form?");
    EXPECT_EQ(run(Command::Exit), "form?");
    mode_ = Mode::Run;
    EXPECT_EQ(run(Command::Process), "") << "a second run, though its button is enabled";
    EXPECT_TRUE(gate_.Offers(Command::Process));
    EXPECT_EQ(run(Command::Stop), "runs");
}

TEST_F(CommandGateTest, WithoutATargetACommandIsNotOfferedAndAsksNothing) {
    bool hasTarget = false;
    gate_.SetHandler(
        Command::New, [this] { transcript_.Add("runs"); }, [&hasTarget] { return hasTarget; });
    EXPECT_FALSE(gate_.Offers(Command::New));
    gate_.Run(Command::New);
    EXPECT_TRUE(transcript_.Lines().empty());
    hasTarget = true;
    EXPECT_TRUE(gate_.Offers(Command::New));
}

TEST_F(CommandGateTest, TurnsWhatACommandThrowsIntoAMessage) {
    gate_.SetHandler(Command::Process, [] { throw std::runtime_error("The disk is full."); });
    gate_.SetAfterwards([this] { transcript_.Add("afterwards"); });
    gate_.SetHandler(Command::Review, [this] { gate_.Run(Command::Process); });
    gate_.Run(Command::Review);
    EXPECT_EQ(transcript_.Joined(),
              "profile? | form? | profile? | form? | message: [] The disk is full. | afterwards");
}

TEST_F(CommandGateTest, ALogThatCannotBeWrittenStopsNoCommand) {
    files_.refuse = [](const std::string&, const std::string&) { return true; };
    gate_.SetHandler(Command::Save, [this] {
        log_.LogProcessEvent("one");
        log_.LogProfileEvent("two");
        transcript_.Add("done");
    });
    gate_.Run(Command::Save);
    EXPECT_EQ(transcript_.Lines(),
              (std::vector<std::string>{
                  "done", "panel Message: The log in the working folder could not be written."}));
}

TEST(CommandTableTest, KeysAreUniqueInTheirToolbarAndShortcutsInTheirModes) {
    std::set<std::pair<Toolbar, std::string_view>> keys;
    std::set<std::pair<std::string_view, char>> shortcuts;
    for (const CommandInfo& info : CommandTable()) {
        EXPECT_TRUE(keys.emplace(info.toolbar, info.key).second) << info.key;
        // A key that only a list takes stands behind a tab in the menu's text.
        EXPECT_TRUE(!info.shortcut.empty() || info.menuText.find('\t') != std::string_view::npos) << info.key;
        for (const char mode : info.shortcut.empty() ? "" : info.rule.acts)
            EXPECT_TRUE(shortcuts.emplace(info.shortcut, mode).second) << info.shortcut;
    }
}

}  // namespace
}  // namespace tavrene::commands
