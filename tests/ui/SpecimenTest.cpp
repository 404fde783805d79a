#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using Names = std::vector<std::string>;

// Documents and specimen images that are damaged or not where they were.
class SpecimenTest : public test::DeskWindow {
  protected:
    SpecimenTest() { AddSpecimenProfile("Form", form_); }

    test::TestForm form_ = test::TestForm::Grid(3, 2);
};

TEST_F(SpecimenTest, DamagedProfilesAndALostSpecimenStayInReach) {
    test::WriteText(folders_.Profiles + "Text.Tvp", "no document");
    const std::string cut = AddSpecimenProfile("Cut", form_);
    std::string text = test::ReadText(cut);
    test::WriteText(cut, text.erase(text.find(" Count"), 10));
    AddSpecimenProfile("Lost", form_, false);
    const std::string lost = folders_.ProfileImages + "Lost.tif";
    files_.Delete(lost);
    Open();
    EXPECT_EQ(Thumbnails(), 4);
    EXPECT_PRED2(test::Has, ProfileLog(), "No thumbnail for profile Lost.Tvp: its specimen image " + lost);
    ClickThumbnail(3);
    EXPECT_EQ(Rows().topLevelItemCount(), 6);
    EXPECT_FALSE(Find<QCheckBox>(*window_, "chkActive").isChecked());
    Click("Save");
    EXPECT_EQ(Notices(), "The specimen image " + lost + " is not there any more.");
    ClickPage({form_.boxes[5].L + 12.0, form_.boxes[5].T + 12.0});
    EXPECT_EQ(Rows().currentIndex().row(), 5) << "boxes can be reached without their page";

    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok).Press(QMessageBox::Ok).Press(QMessageBox::Yes);
    ClickThumbnail(4);
    ClickThumbnail(1);
    EXPECT_EQ(dialogs.shown.at(1),
              "The profile " + cut + " cannot be opened: the attribute Count of OMRs is missing.");
    EXPECT_EQ(View().sceneRect().width(), form_.width) << "its page is shown";
    EXPECT_EQ(Rows().topLevelItemCount(), 0);
    EXPECT_FALSE(Find<QCheckBox>(*window_, "chkActive").isEnabled());
    EXPECT_EQ(Panel("ElapsedTime"), "") << "nothing of the profile before it";
    Click("Delete");
    EXPECT_EQ(In(folders_.Profiles), (Names{"Form.Tvp", "Lost.Tvp", "Tavrene_Profiles.tif", "Text.Tvp"}));
    EXPECT_EQ(SelectedThumbnail(), 0);
    Press(Strip(), Qt::Key_Down);
    EXPECT_EQ(Rows().topLevelItemCount(), 6) << "the keyboard opens as well";
}

TEST_F(SpecimenTest, ALostSpecimenIsLocatedWithoutSavingTheBoxes) {
    const std::string moved = folders_.ProfileImages + "moved.tif";
    files_.Move(folders_.ProfileImages + "Form.tif", moved);
    Open();
    ClickThumbnail(1);
    ClickRow(0);
    Press(Rows(), Qt::Key_Delete);
    DialogScript dialogs;
    dialogs.Type(moved);
    Find<QFrame>(*window_, "MessageStrip").findChild<QPushButton*>()->click();
    EXPECT_PRED2(test::Has, Notices(), "moved.tif now. Locate another one");
    EXPECT_EQ(View().sceneRect().width(), form_.width);
    EXPECT_EQ(Panel("Message"), "Profile [Form], Image [moved.tif]");
    EXPECT_EQ(RowTexts().size(), 5U);
    EXPECT_EQ(Saved("Form"), form_.boxes);
    EXPECT_PRED2(test::Has, test::ReadText(folders_.Profiles + "Form.Tvp"), moved);
    EXPECT_TRUE(Find<QAction>(*window_, "Undo").isEnabled());
}

}  // namespace
}  // namespace tavrene::ui
