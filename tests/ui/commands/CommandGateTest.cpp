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
    test::Transcript transcript_;
    test::FakeOperator person_{transcript_};
    test::FaultyFiles files_;
    test::FakeClock clock_;
    app::ActivityLog log_{files_, clock_, person_, "nowhere"};
    bool processing_ = false;
    CommandGate gate_{person_, log_, processing_};
};

TEST_F(CommandGateTest, LetsOnlyStopAndClosingThroughDuringARun) {
    std::vector<Command> ran;
    for (const CommandInfo& info : CommandTable())
        gate_.SetHandler(info.command, [&ran, command = info.command] { ran.push_back(command); });
    processing_ = true;
    for (const CommandInfo& info : CommandTable())
        gate_.Run(info.command);
    EXPECT_EQ(ran, (std::vector{Command::Stop, Command::Exit}));

    EXPECT_TRUE(gate_.Offers(Command::Process));
    EXPECT_TRUE(gate_.Offers(Command::Stop));
    EXPECT_FALSE(gate_.Offers(Command::ZoomIn));
    EXPECT_FALSE(gate_.Offers(Command::Settings));
    processing_ = false;
    EXPECT_TRUE(gate_.Offers(Command::ZoomIn));
}

TEST_F(CommandGateTest, OffersNothingWithoutAHandler) {
    EXPECT_FALSE(gate_.Offers(Command::New));
    gate_.Run(Command::New);
    EXPECT_TRUE(transcript_.Lines().empty());
}

TEST_F(CommandGateTest, TurnsWhatACommandThrowsIntoAMessage) {
    gate_.SetHandler(Command::Process, [] { throw std::runtime_error("The disk is full."); });
    gate_.SetAfterwards([this] { transcript_.Add("afterwards"); });
    gate_.Run(Command::Process);
    EXPECT_EQ(transcript_.Lines(), (std::vector<std::string>{"message: [] The disk is full.", "afterwards"}));
}

TEST_F(CommandGateTest, ALogThatCannotBeWrittenStopsNoCommand) {
    files_.refuse = [](const std::string&, const std::string&) { return true; };
    gate_.SetHandler(Command::Okay, [this] {
        log_.LogProcessEvent("one");
        log_.LogProfileEvent("two");
        transcript_.Add("done");
    });
    gate_.Run(Command::Okay);
    EXPECT_EQ(transcript_.Lines(),
              (std::vector<std::string>{
                  "done", "panel Message: The log in the working folder could not be written."}));
}

TEST(CommandTableTest, KeysAreUniqueInTheirToolbarAndShortcutsEverywhere) {
    std::set<std::pair<Toolbar, std::string_view>> keys;
    std::set<std::string_view> shortcuts;
    for (const CommandInfo& info : CommandTable()) {
        EXPECT_TRUE(keys.emplace(info.toolbar, info.key).second) << info.key;
        // A key that only a list takes stands behind a tab in the menu's text.
        if (info.shortcut.empty())
            EXPECT_NE(info.menuText.find('\t'), std::string_view::npos) << info.key;
        else
            EXPECT_TRUE(shortcuts.insert(info.shortcut).second) << info.shortcut;
    }
}

}  // namespace
}  // namespace tavrene::commands
