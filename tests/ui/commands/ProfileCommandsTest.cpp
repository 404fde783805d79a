#include <deque>

#include "support/DeskWorld.h"
#include "ui/commands/ProfileCommands.h"
#include "ui/commands/SavePrompts.h"

namespace tavrene::commands {
namespace {

using app::Answer;
using app::Panel;
using test::TestForm;
using Names = std::vector<std::string>;

class ScriptedDialogs final : public FileDialogs {
  public:
    std::deque<std::optional<std::string>> answers;
    Names questions;

    std::optional<std::string> AskSaveFile(const FileQuestion& question) override {
        return Ask("save", question);
    }
    std::optional<std::string> AskOpenFile(const FileQuestion& question) override {
        return Ask("open", question);
    }

  private:
    std::optional<std::string> Ask(const std::string& kind, const FileQuestion& question) {
        questions.push_back(kind + " " + question.startFolder + " " + question.fileName + " " +
                            question.filter);
        if (answers.empty()) {
            ADD_FAILURE() << "no answer is scripted for " << questions.back();
            return std::nullopt;
        }
        std::optional<std::string> answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

class ProfileCommandsTest : public test::DeskWorld {
  protected:
    ProfileCommandsTest() {
        state_.settings = settings_;
        state_.folders = folders_;
        state_.reach = {44, 40};
        AddSpecimenProfile("Old", form_);
        commands_.LoadStrip();
        commands_.ThumbnailSelected(1);
        transcript_.Clear();
    }

    TestForm form_ = TestForm::Grid(3, 2);
    AppState state_;
    ScriptedDialogs dialogs_;
    ProfileCommands commands_{state_, {store_, profile_, person_, dialogs_, screen_}};
};

TEST_F(ProfileCommandsTest, NewAsksForNameAndImage) {
    const std::string image = folders_.ProfileImages + "blank.tif";
    form_.SaveScan(image, {});
    dialogs_.answers = {folders_.Profiles + "Neu & gut.Tvp", image};
    commands_.New();
    EXPECT_EQ(
        dialogs_.questions,
        (Names{"save " + folders_.Profiles + " New.Tvp Tavrene Profiles (*.Tvp)|*.Tvp",
               "open " + folders_.ProfileImages + "  Image Files (*.Tif;*.Jpg;*.Png)|*.Tif;*.Jpg;*.Png"}));
    EXPECT_EQ(profile_.Name, "Neu & gut");
    EXPECT_EQ(profile_.CurrentProfile, 1);
    EXPECT_EQ(transcript_.LinesOf("panel Message: ").back(), "Ready");
    EXPECT_TRUE(commands_.CanEdit());
}

TEST_F(ProfileCommandsTest, NewCanBeLeftAtEveryQuestion) {
    editor_.RowRenamed(1, "edited");
    person_.answers = {Answer::Cancel};
    commands_.New();
    EXPECT_TRUE(dialogs_.questions.empty());
    person_.answers = {Answer::No};
    dialogs_.answers = {std::nullopt};
    commands_.New();
    EXPECT_TRUE(transcript_.LinesOf("view: ").empty());
    dialogs_.answers = {folders_.Profiles + "X.Tvp", std::nullopt};
    commands_.New();
    EXPECT_EQ(transcript_.LinesOf("view: "), Names{"clear"});
    EXPECT_TRUE(commands_.CanEdit());
    EXPECT_EQ(profile_.BoxList[0].Name, "edited");
    EXPECT_EQ(In(folders_.Profiles), (Names{"Old.Tvp", "Tavrene_Profiles.tif"}));
}

TEST_F(ProfileCommandsTest, TheMessagePanelTellsOfTrapsAfterTheTextsOfTheCommand) {
    AddSpecimenProfile("Row", TestForm::Grid(4, 1));
    commands_.LoadStrip();
    transcript_.Clear();
    commands_.ThumbnailSelected(2);
    const Names opened = transcript_.LinesOf("panel Message: ");
    ASSERT_EQ(opened.size(), 2U);
    EXPECT_EQ(opened[0], "Profile [Row], Image [Row.tif]");
    EXPECT_TRUE(opened[1].starts_with(opened[0] + ". ")) << opened[1];
    EXPECT_NE(opened[1].find("all lie in one row"), std::string::npos);
    Draw({200, 300, 24, 24});
    commands_.Save();
    EXPECT_EQ(person_.PanelText(Panel::Message), "Ready");

    form_.boxes.clear();
    const std::string empty = folders_.ProfileImages + "empty.tif";
    form_.SaveScan(empty, {});
    dialogs_.answers = {folders_.Profiles + "Zero.Tvp", empty};
    commands_.New();
    EXPECT_EQ(profile_.Count, 0);
    EXPECT_NE(person_.PanelText(Panel::Message).find("no profile behind it"), std::string::npos);
}

TEST_F(ProfileCommandsTest, ActiveReachesTheFileWithTheNextSave) {
    commands_.SetActive(false);
    EXPECT_FALSE(profile_.ProfileChanged);
    EXPECT_EQ(profiles_[0].Active, true);
    commands_.Save();
    EXPECT_EQ(profiles_[0].Active, false);
    person_.answers = {Answer::Yes};
    commands_.Delete();
    EXPECT_FALSE(commands_.CanEdit() || commands_.CanDelete());
    commands_.Delete();
    commands_.SetActive(true);
    EXPECT_FALSE(profile_.Active);
}

TEST(SavePrompts, AskInOrderAndStopAtTheFirstCancel) {
    std::string asked;
    bool mayGo = true;
    const auto prompt = [&](char name) {
        return [&asked, &mayGo, name] {
            asked += name;
            return mayGo;
        };
    };
    const SavePrompts prompts(prompt('p'), prompt('f'));
    EXPECT_TRUE(prompts.ProfileThenForm());
    EXPECT_TRUE(prompts.FormThenProfile());
    mayGo = false;
    EXPECT_FALSE(prompts.ProfileThenForm());
    EXPECT_FALSE(prompts.FormThenProfile());
    EXPECT_EQ(asked, "pffppf");
    EXPECT_TRUE(SavePrompts(nullptr, nullptr).FormThenProfile());
}

}  // namespace
}  // namespace tavrene::commands
