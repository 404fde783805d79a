#include <QScopeGuard>
#include <QToolButton>
#include <QTreeView>

#include "recognition/ResultDocument.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using Box = QMessageBox;
using Names = std::vector<std::string>;

class CommandRowsTest : public test::DeskWindow {
  protected:
    CommandRowsTest() {
        AddSpecimenProfile("Form", form_);
        form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {2}});
        form_.SaveScan(folders_.ProcessIn + "b.tif", {});
    }

    QTreeView& List() { return Find<QTreeView>(*window_, "lvwReview"); }
    QAction& Command(const char* key) { return Find<QAction>(*window_, key); }

    void OpenProfile(bool isChanged = false) {
        Open();
        ClickThumbnail(1);
        ClickRow(0);
        if (isChanged)
            Press(Rows(), Qt::Key_Delete);
    }

    void OpenForm(bool isChanged = false) {
        Open();
        Click("Process");
        // Escape would close it first.
        Find<QToolButton>(*window_, "cmdCloseSummary").click();
        Click("Review");
        Press(List(), Qt::Key_Return);
        if (isChanged)
            ClickRow(0);
    }

    bool IsMarked(std::size_t box) const {
        return recognition::ResultDocument::Load(files_, folders_.ProcessOut + "a.xml")
            .Marks()
            .at(box)
            .Checked;
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

// Yes saves and goes on, No goes on, Cancel does neither, whatever asked and whatever is unsaved.
TEST_F(CommandRowsTest, EveryCommandThatLeavesUnsavedWorkAsksFirst) {
    struct Row {
        const char* command;
        bool inReview;  // A form is unsaved, not the profile.
        std::function<bool()> wentOn;
    };
    const auto ran = [this] { return In(folders_.ProcessIn).empty(); };
    const auto toggled = [this] { return Command("Review").isChecked(); };
    const auto released = [&] { return !toggled(); };
    const auto closed = [this] { return !window_->isVisible(); };
    const Row rows[] = {{"Process", false, ran}, {"Review", false, toggled}, {"Escape", false, closed},
                        {"Process", true, ran},  {"Review", true, released}, {"Escape", true, closed}};
    for (const Row& row : rows)
        for (const Box::StandardButton answer : {Box::Cancel, Box::No, Box::Yes}) {
            SCOPED_TRACE(std::string(row.command) + (row.inReview ? " form " : " profile ") +
                         std::to_string(answer));
            AddSpecimenProfile("Form", form_);
            form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {2}});
            row.inReview ? OpenForm(true) : OpenProfile(true);
            form_.SaveScan(folders_.ProcessIn + "c.tif", {});
            DialogScript answers;
            answers.Press(answer);
            row.command == std::string("Escape") ? Press(View(), Qt::Key_Escape) : Click(row.command);
            EXPECT_EQ(answers.shown,
                      Names{row.inReview ? "Save changes to Form <a>?"
                                         : "Save changes to Profile <" + folders_.Profiles + "Form.Tvp>?"});
            EXPECT_EQ(row.wentOn(), answer != Box::Cancel);
            if (row.inReview)
                EXPECT_EQ(IsMarked(0), answer == Box::Yes);
            else
                EXPECT_EQ(Saved("Form").size(), answer == Box::Yes ? 3U : 4U);
        }
}

TEST_F(CommandRowsTest, CancelKeepsWhatIsUnsavedWhateverWouldLeaveIt) {
    const auto expectAsks = [this](const std::string& question, std::initializer_list<const char*> keys) {
        for (const char* const key : keys) {
            DialogScript answers;
            answers.Press(Box::Cancel);
            Command(key).trigger();
            EXPECT_EQ(answers.shown, Names{question}) << key;
            EXPECT_TRUE(window_->isWindowModified()) << key;
        }
    };
    OpenProfile(true);
    expectAsks("Save changes to Profile <" + folders_.Profiles + "Form.Tvp>?",
               {"New", "DuplicateProfile", "RenameProfile"});
    EXPECT_EQ(RowTexts(), (Names{"Q2", "Q3", "Q4"}));
    EXPECT_EQ(Saved("Form").size(), 4U);
    test::WriteText(folders_.ProcessIn + "torn.tif", "no image");
    OpenForm(true);
    expectAsks("Save changes to Form <a>?",
               {"NextForm", "DoubtSheet", "AcceptAllClear", "AcceptForm", "ProcessUnread"});
}

TEST_F(CommandRowsTest, SaveWritesTheProfileAndDeleteAsksAndTakesItAway) {
    OpenProfile(true);
    Click("Save");
    EXPECT_EQ(Saved("Form").size(), 3U);
    DialogScript answers;
    answers.Press(Box::No).Press(Box::Yes);
    Click("Delete");
    EXPECT_EQ(Thumbnails(), 1);
    Click("Delete");
    EXPECT_EQ(answers.shown, Names(2, "Delete Profile " + folders_.Profiles + "Form.Tvp"));
    EXPECT_FALSE(files_.FileExists(folders_.Profiles + "Form.Tvp"));
}

TEST_F(CommandRowsTest, TheZoomGoesUpByAQuarterAndDownByAFifth) {
    OpenProfile();
    auto& shown = Find<QSpinBox>(*window_, "ZoomPercent");
    const std::pair<const char*, std::vector<int>> series[] = {
        {"ZoomIn", {125,  156,  195,  244,  305,  381,  476,  595,  744,  930,
                    1162, 1452, 1815, 2269, 2836, 3545, 4431, 5539, 6500, 6500}},
        {"ZoomOut", {80, 64, 51, 41, 33, 26, 21, 17, 14, 11, 9, 7, 6, 5, 4, 3, 2, 2}}};
    for (const auto& [command, percents] : series) {
        Click("ZoomToOrig");
        EXPECT_EQ(View().Zoom(), 100);
        for (const int percent : percents) {
            Click(command);
            EXPECT_EQ(View().Zoom(), percent) << command;
            EXPECT_EQ(shown.value(), percent);
        }
    }
}

TEST_F(CommandRowsTest, TheReviewToggleShowsOneModeAndHidesTheOther) {
    const Names ofReview = {"lvwReview", "cboProfiles"};
    const Names ofProfiles = {"ImgThumbnail1", "chkActive"};
    const auto expectShown = [this](const Names& names, bool shown) {
        for (const std::string& name : names)
            EXPECT_EQ(Find<QWidget>(*window_, name.c_str()).isVisible(), shown) << name;
    };
    OpenProfile();
    expectShown(ofProfiles, true);
    expectShown(ofReview, false);
    Click("Process");
    for (const bool pressed : {true, false}) {
        Click("Review");
        EXPECT_EQ(Command("Review").isChecked(), pressed);
        expectShown(ofReview, pressed);
        expectShown(ofProfiles, !pressed);
        for (const char* const decision : {"Okay", "AcceptForm", "RejectForm"})
            EXPECT_EQ(Command(decision).isVisible(), pressed) << decision;
        EXPECT_EQ(Command("New").isEnabled(), !pressed);
        for (const char* const ofFile : {"Save", "Delete"})
            EXPECT_FALSE(Command(ofFile).isEnabled()) << ofFile;
        if (pressed) {
            EXPECT_EQ(List().model()->rowCount(), 2);
            Press(List(), Qt::Key_Return);
            EXPECT_EQ(RowTexts().size(), 4U);
        }
    }
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:1");
    for (const char* const panel : {"Message", "ElapsedTime"})
        EXPECT_EQ(Panel(panel), "") << panel;
    EXPECT_TRUE(RowTexts().empty());
    EXPECT_TRUE(View().Boxes().Numbers().empty());
    EXPECT_FALSE(Find<QComboBox>(*window_, "cboProfiles").isEnabled());
}

// Saving is what Reviewed OK is for, and a form that is rejected is not saved: neither asks.
TEST_F(CommandRowsTest, DecisionsSaveAcceptAndReject) {
    OpenForm(true);
    const DialogScript noQuestions;
    Click("Okay");
    EXPECT_TRUE(IsMarked(0));
    EXPECT_EQ(Panel("File"), "Reviewed: 1 of 2");
    Click("AcceptForm");
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"a.tif", "a.xml"}));
    Press(List(), Qt::Key_Return);
    ClickRow(0);
    Click("RejectForm");
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"b.tif", "b.xml"}));
}

TEST_F(CommandRowsTest, SettingsAndAboutStandOverTheWindowAndEscapeClosesThemFirst) {
    Open();
    DialogScript answers;
    const auto escape = [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
    answers.Do(escape).Do(escape);
    Command("Settings").trigger();
    Command("About").trigger();
    EXPECT_EQ(answers.shown, (Names{"frmSettings", "frmAbout"}));
    EXPECT_TRUE(window_->isVisible());
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

}  // namespace
}  // namespace tavrene::ui
