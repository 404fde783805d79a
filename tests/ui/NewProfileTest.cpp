#include <filesystem>

#include "support/SourceFolder.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using Names = std::vector<std::string>;

const std::string kSamples = test::SourceFolder() + "/samples/";

// A profile document without what the person chooses: names of boxes and the place of the image.
std::string Nameless(const std::string& path) {
    std::string text = test::ReadText(path);
    for (const std::string attribute : {" Name=\"", " Image=\""}) {
        for (auto at = text.find(attribute); at != std::string::npos; at = text.find(attribute, at))
            text.erase(at, text.find('"', at + attribute.size()) + 1 - at);
    }
    return text;
}

class NewProfileTest : public test::DeskWindow {
  protected:
    NewProfileTest() {
        std::filesystem::copy(kSamples + "blanks", app::ToPath(folders_.ProfileImages));
        AddSpecimenProfile("Old", form_);
    }
    test::TestForm form_ = test::TestForm::Grid(3, 2);
};

TEST_F(NewProfileTest, EachSampleBlankBecomesTheProfileThatIsKnownOfIt) {
    Open();
    for (const std::string name : {"PatientQuestionnaire", "StaffSurvey"}) {
        const test::PaintWatch message(Find<QLabel>(*window_, "Message"));
        DialogScript dialogs;
        dialogs.Type(name).Type(folders_.ProfileImages + name + ".tif");
        Click("New");
        EXPECT_EQ(dialogs.shown, (Names{folders_.Profiles + "|New.Tvp|Tavrene Profiles (*.Tvp)",
                                        folders_.ProfileImages + "||Image Files (*.Tif;*.Jpg;*.Png)"}));
        for (std::size_t step = 1; step <= 11; ++step)
            EXPECT_TRUE(message.shown.contains("Processing step " + std::to_string(step) + " of 11 " +
                                               std::string(step, '.')));
        EXPECT_EQ(Nameless(folders_.Profiles + name + ".Tvp"),
                  Nameless(kSamples + "profiles/" + name + ".Tvp"));
        EXPECT_EQ(Rows().topLevelItemCount(), static_cast<int>(Saved(name).size()));
        EXPECT_TRUE(Find<QCheckBox>(*window_, "chkActive").isChecked());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    EXPECT_EQ(SelectedThumbnail(), 3);
    EXPECT_EQ(FromQt(Strip().model()->index(2, 0).data().toString()), "Profile 3 of 3");
}

TEST_F(NewProfileTest, TheDialogForANewNameTakesNoneThatIsThereAndStaysOpen) {
    AddSpecimenProfile("Say \"yes\"", form_);
    const std::string before = test::ReadText(folders_.Profiles + "Old.Tvp");
    Open();
    ClickThumbnail(1);
    DialogScript dialogs;
    dialogs.Type("old").PressEnter().Type("Say \"yes\"").PressEnter().Type("Copy");
    Find<QAction>(*window_, "DuplicateProfile").trigger();
    ASSERT_EQ(dialogs.shown.size(), 5U);
    EXPECT_EQ(dialogs.shown[1], "Old.Tvp is there already.\nChoose another name.");
    EXPECT_EQ(dialogs.shown[3], "Say \"yes\".Tvp is there already.\nChoose another name.");
    EXPECT_TRUE(files_.FileExists(folders_.Profiles + "Copy.Tvp"));
    EXPECT_EQ(test::ReadText(folders_.Profiles + "Old.Tvp"), before);
}

TEST_F(NewProfileTest, CancelLeavesEverythingAsItWas) {
    Open();
    ClickThumbnail(1);
    const std::string before = test::ReadText(folders_.Profiles + "Old.Tvp");
    ClickPage(QPointF(form_.boxes[0].L + 5, form_.boxes[0].T + 5));
    Press(View(), Qt::Key_Right);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Cancel).Press(QMessageBox::Cancel).Press(QMessageBox::No);
    Click("New");
    Press(View(), Qt::Key_Escape);
    Click("Delete");
    Names wanted(2, "Save changes to Profile <" + folders_.Profiles + "Old.Tvp>?");
    wanted.push_back("Delete Profile " + folders_.Profiles + "Old.Tvp");
    EXPECT_EQ(dialogs.shown, wanted);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(Rows().topLevelItemCount(), 6);
    EXPECT_EQ(SelectedThumbnail(), 1);
    EXPECT_TRUE(Find<QAction>(*window_, "Undo").isEnabled());

    dialogs.Press(QMessageBox::No).Cancel();
    Click("New");
    EXPECT_EQ(View().sceneRect().width(), form_.width);
    dialogs.Type("Other").Cancel();
    Click("New");
    EXPECT_LE(View().sceneRect().width(), 1) << "a cancelled image dialog clears the view";
    EXPECT_EQ(Rows().topLevelItemCount(), 6) << "the profile stays open";
    EXPECT_EQ(In(folders_.Profiles), (Names{"Old.Tvp", "Tavrene_Profiles.tif"}));
    EXPECT_EQ(test::ReadText(folders_.Profiles + "Old.Tvp"), before) << "the answer No saves nothing";
}

TEST_F(NewProfileTest, AnImageThatIsOfNoUseIsToldAndNothingIsWritten) {
    Open();
    test::WriteText(folders_.ProfileImages + "letter.png", "no image");
    DialogScript dialogs;
    dialogs.Type("No.good").Type(folders_.ProfileImages + "letter.png").Press(QMessageBox::Ok);
    Click("New");
    EXPECT_EQ(dialogs.shown.back(), "Image not in bitmap format");
    EXPECT_EQ(In(folders_.Profiles), (Names{"Old.Tvp", "Tavrene_Profiles.tif"}));

    for (const std::string& name : {std::string("Old"), std::string("oLD.tVP"), folders_.Profiles + "old"}) {
        dialogs.shown.clear();
        dialogs.Type(name).Press(QMessageBox::No).Cancel();
        Click("New");
        EXPECT_PRED2(test::Has, dialogs.shown.at(1), "Old.Tvp already exists");
    }
    const std::string image = folders_.ProfileImages + "the \"old\" one.tif";
    files_.Move(folders_.ProfileImages + "Old.tif", image);
    for (const char* name : {"Form 2.1", "\"quoted\"", "say \"yes\"."}) {
        dialogs.Type(name).Type(image);
        Click("New");
    }
    dialogs.shown.clear();
    dialogs.Type("Say \"YES\".").Press(QMessageBox::No).Cancel();
    Click("New");
    EXPECT_PRED2(test::Has, dialogs.shown.at(1), "say \"yes\"..Tvp already exists");
    dialogs.Type(".hidden").Press(QMessageBox::Ok).Cancel();
    Click("New");
    EXPECT_EQ(In(folders_.Profiles),
              (Names{"Form 2.1.Tvp", "Old.Tvp", "quoted.Tvp", "say \"yes\"..Tvp", "Tavrene_Profiles.tif"}));
    EXPECT_EQ(SelectedThumbnail(), 4);
}

TEST_F(NewProfileTest, TrapsAreToldOverThePageAndThePanelsStayTrue) {
    AddSpecimenProfile("Row", test::TestForm::Grid(4, 1));
    Open();
    ClickThumbnail(2);
    EXPECT_PRED2(test::Has, Notices(), "all lie in one row");
    EXPECT_EQ(Panel("Message"), "Profile [Row], Image [Row.tif]");
    Click("Add", "CfgToolbar");
    Drag({200, 300}, {224, 324});
    EXPECT_EQ(Notices(),
              "1 of 5 boxes still has the name that it was given when it was made, as Un-named-5. "
              "Results carry these names.");
    dynamic_cast<ImageView&>(View()).SetZoom(400);
    ClickRow(4);
    const auto place = [this] { return View().viewport()->mapToGlobal(View().mapFromScene(200, 300)); };
    const QPoint before = place();
    Find<QAbstractButton>(*window_, "cmdCloseNotices").click();
    QApplication::processEvents();
    EXPECT_EQ(Notices(), "");
    EXPECT_EQ(place(), before) << "nothing moves under the pointer";
    Drag({240, 300}, {264, 324});
    Click("Save");
    EXPECT_EQ(Notices(), "") << "what was closed stays closed";
    EXPECT_EQ(Panel("Message"), "Saved Profile: Row");
    Press(View(), Qt::Key_Delete);
    ClickRow(4);
    Press(View(), Qt::Key_Delete);
    EXPECT_PRED2(test::Has, Notices(), "all lie in one row");
    Click("Save");

    form_.boxes.clear();
    form_.SaveScan(folders_.ProfileImages + "empty.tif", {});
    DialogScript dialogs;
    dialogs.Type("Zero").Type(folders_.ProfileImages + "empty.tif");
    Click("New");
    EXPECT_TRUE(Saved("Zero").empty());
    EXPECT_PRED2(test::Has, Notices(), "no profile behind it");
    EXPECT_EQ(Panel("Message"), "0 OMR Boxes identified");
    test::WriteText(folders_.ProfileImages + "letter.png", "no image");
    dialogs.Type("No good").Type(folders_.ProfileImages + "letter.png").Press(QMessageBox::Ok);
    Click("New");
    EXPECT_EQ(Panel("Message"), "Profile [Zero], Image [empty.tif]") << "the open one is still this";
    dialogs.Press(QMessageBox::Yes);
    Click("Delete");
    EXPECT_EQ(Panel("Message") + Panel("ElapsedTime") + Notices(), "Deleted Profile: Zero");
}

}  // namespace
}  // namespace tavrene::ui
