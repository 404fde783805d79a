#include <stdexcept>

#include "support/RunWorld.h"
#include "ui/commands/SettingsCommand.h"
#include "ui/commands/WindowLoad.h"

namespace tavrene::commands {
namespace {

using Names = std::vector<std::string>;

class WindowLoadTest : public test::RunWorld {
  protected:
    WindowLoadTest() {
        settings_.BoxMaxWidth = 38;
        settings_.BoxMaxHeight = 34;
        AddProfile("Form", test::TestForm::Grid(2, 2));
    }

    AppState Load(std::function<std::string()> version) {
        AppState state = InitialState(settings_);
        CommandGate gate(person_, log_, state.processing);
        LoadWindow(state,
                   {log_, person_, std::move(version),
                    [&] {
                        state.profiles =
                            profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
                    }},
                   gate);
        return state;
    }

    std::string ProfileLog() const {
        return test::ReadText(folders_.Log + "TavreneBoxes-Profile-20240305.Log");
    }
};

TEST_F(WindowLoadTest, LoadsProfilesAndFixesWhatStaysForTheRun) {
    const AppState state = Load([] { return "3.18"; });
    EXPECT_EQ(state.folders.ProcessIn, folders_.ProcessIn);
    ASSERT_EQ(state.profiles.size(), 1U);
    EXPECT_EQ(state.reach.X, 44);
    EXPECT_EQ(state.reach.Y, 40);
    EXPECT_EQ(person_.PanelText(app::Panel::File), "Profiles:1, Active:1");
    EXPECT_TRUE(transcript_.LinesOf("message: ").empty());
}

TEST_F(WindowLoadTest, OpensWithoutTheImageLibraryAndSaysSo) {
    const AppState state = Load([]() -> std::string { throw std::runtime_error("no such library"); });
    EXPECT_EQ(transcript_.LinesOf("message: "), Names{"[] FreeImage is not available"});
    EXPECT_NE(ProfileLog().find(" FreeImage is not available\r\n"), std::string::npos);
    EXPECT_EQ(state.profiles.size(), 1U);
}

TEST_F(WindowLoadTest, TellsOfAMissingLibraryEvenWhenTheLogCannotBeWritten) {
    files_.refuse = [](const std::string& operation, const std::string&) { return operation == "append"; };
    const AppState state = Load([] { return std::string(); });
    EXPECT_EQ(transcript_.LinesOf("message: "), Names{"[] FreeImage is not available"});
    EXPECT_EQ(state.profiles.size(), 1U);
}

TEST_F(WindowLoadTest, SettingsThatWaitForTheNextStartAreTold) {
    const auto message = [this](const std::function<void(app::Settings&)>& change) {
        app::Settings settings = settings_;
        person_.SetPanel(app::Panel::Message, "Ready");
        ShowSettings(settings, person_, change);
        return person_.PanelText(app::Panel::Message);
    };
    EXPECT_EQ(message([](app::Settings& settings) { settings.FillThreshold = 20; }), "Ready");
    EXPECT_EQ(message([](app::Settings& settings) { settings.BoxMinHeight = 20; }),
              "The new box sizes take full effect at the next start.");
    EXPECT_EQ(message([](app::Settings& settings) { settings.WorkDir = "/elsewhere"; }),
              "The new working folder is used at the next start.");
}

}  // namespace
}  // namespace tavrene::commands
