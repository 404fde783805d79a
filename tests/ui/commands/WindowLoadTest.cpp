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
        CommandGate gate({person_, log_, [] { return Mode::Start; }, {}, {}});
        LoadWindow(state,
                   {log_, person_, std::move(version),
                    [&] {
                        state.profiles =
                            profiles::LoadActiveProfiles(files_, log_, person_, folders_.Profiles);
                    }},
                   gate);
        return state;
    }
};

TEST_F(WindowLoadTest, OpensWithoutTheImageLibraryAndSaysSo) {
    const AppState state = Load([]() -> std::string { throw std::runtime_error("no such library"); });
    const Names expected = {"[] FreeImage is not available"};
    EXPECT_EQ(transcript_.LinesOf("message: "), expected);
    EXPECT_NE(ProfileLog().find(" FreeImage is not available\r\n"), std::string::npos);
    EXPECT_EQ(state.profiles.size(), 1U);
    EXPECT_EQ(std::pair(state.reach.X, state.reach.Y), std::pair(44, 40));
}

TEST_F(WindowLoadTest, SettingsThatWaitForTheNextStartAreTold) {
    using app::Settings;
    const std::vector<std::pair<std::function<void(Settings&)>, std::string>> changes = {
        {[](Settings& settings) { settings.FillThreshold = 20; }, "Ready"},
        {[](Settings& settings) { settings.BoxMinHeight = 20; },
         "The new box sizes take full effect at the next start."},
        {[](Settings& settings) { settings.WorkDir = "/elsewhere"; },
         "The new working folder is used at the next start."},
        {[](Settings& settings) { settings.BoxMaxWidth = 20, settings.WorkDir = "/elsewhere"; },
         "The box sizes take full effect, and the working folder is used, at the next start."}};
    for (const auto& [change, text] : changes) {
        Settings settings = settings_;
        person_.SetPanel(app::Panel::Message, "Ready");
        ShowSettings(settings, person_, change);
        EXPECT_EQ(person_.PanelText(app::Panel::Message), text);
    }
}

}  // namespace
}  // namespace tavrene::commands
