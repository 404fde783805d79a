#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "painter/ImageFiles.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;

// A profile that knows six of nine boxes: those of the middle row were missed.
class MoreBoxesTest : public test::DeskWindow {
  protected:
    MoreBoxesTest() {
        test::TestForm known = form_;
        known.boxes.erase(known.boxes.begin() + 3, known.boxes.begin() + 6);
        AddSpecimenProfile("Gaps", known);
        form_.SaveScan(folders_.ProfileImages + "Gaps.tif", {});
    }

    void OpenProfileAndLook() {
        Open();
        ClickThumbnail(1);
        Press(*window_, Qt::Key_M, Qt::ControlModifier);
    }

    QListWidget& Candidates() { return Find<QListWidget>(*window_, "lvwCandidates"); }
    bool AreShown() { return Find<QWidget>(*window_, "CandidatePane").isVisible(); }

    test::TestForm form_ = test::TestForm::Grid(3, 3);
};

TEST_F(MoreBoxesTest, EachTakenBoxComesWhereSortingPutsItAndGoesWithOneUndo) {
    OpenProfileAndLook();
    ASSERT_EQ(Candidates().count(), 3);
    EXPECT_EQ(Panel("Message"), "3 more may be boxes.");
    EXPECT_EQ(Candidates().item(0)->text(), ToQt("24 x 24 at " + std::to_string(form_.boxes[3].L) + ", " +
                                                 std::to_string(form_.boxes[3].T)));
    const std::vector<std::string> before = RowTexts();
    Press(View(), Qt::Key_Delete);
    EXPECT_EQ(RowTexts(), before) << "what stands out on the page is no box yet";
    QTest::keyClick(&Candidates(), Qt::Key_Return);
    EXPECT_EQ(Candidates().count(), 2);
    ASSERT_EQ(Rows().topLevelItemCount(), 7);
    std::vector<std::string> after = before;
    after.insert(after.begin() + 3, "Un-named-7");
    EXPECT_EQ(RowTexts(), after);

    // A click on the dotted outline of the next one takes it as well, also where a box has its handles.
    const profiles::OmrBox& next = form_.boxes[4];
    Click("ZoomToOrig");
    Click("ZoomIn");
    Click("ZoomIn");
    ClickPage({next.L + 0.0, next.T + 0.0});
    EXPECT_EQ(Candidates().count(), 1);
    EXPECT_EQ(Rows().topLevelItemCount(), 8);
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(RowTexts(), after);
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(RowTexts(), before);
    Press(*window_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(RowTexts(), after);

    Click("Save");
    const std::vector<profiles::OmrBox> saved = Saved("Gaps");
    ASSERT_EQ(saved.size(), 7U);
    EXPECT_EQ(saved[3].L, next.L - (form_.boxes[4].L - form_.boxes[3].L));
    EXPECT_EQ(saved[3].T, next.T);
}

TEST_F(MoreBoxesTest, AllAtOnceAreOneEditAndEscapeClosesTheListBeforeTheWindow) {
    OpenProfileAndLook();
    ASSERT_TRUE(AreShown());
    QTest::keyClick(&Candidates(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(AreShown());
    EXPECT_TRUE(Rows().hasFocus()) << "the keys go on with the boxes";
    EXPECT_EQ(Rows().topLevelItemCount(), 9);
    EXPECT_EQ(Panel("Message"), "3 boxes added.");
    Press(*window_, Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(Panel("Message"), "No more boxes were found.");
    EXPECT_FALSE(AreShown());
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Rows().topLevelItemCount(), 6);

    Press(*window_, Qt::Key_M, Qt::ControlModifier);
    ASSERT_TRUE(AreShown());
    const QPoint row = Candidates().visualItemRect(Candidates().item(0)).center();
    QTest::mouseClick(Candidates().viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(Candidates().viewport(), Qt::LeftButton, {}, row);
    QTest::mouseRelease(Candidates().viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(Candidates().count(), 2) << "the second click of a double click takes no other";
    Press(*window_, Qt::Key_Escape);
    EXPECT_FALSE(AreShown());
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(Rows().topLevelItemCount(), 7);
}

TEST_F(MoreBoxesTest, EscapeStopsTheLookAndNothingElseActsMeanwhile) {
    Open();
    ClickThumbnail(1);
    int clicks = 0;
    const test::WhileRunning presses([&] {
        if (Panel("Message").find("Esc stops") == std::string::npos)
            return;
        ++clicks;
        QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
        QTest::keyClick(window_.get(), Qt::Key_Escape);
    });
    Find<QAction>(*window_, "FindMoreBoxes").trigger();
    EXPECT_GT(clicks, 0);
    EXPECT_EQ(Panel("Message"), "Looking for more boxes was stopped.");
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MoreBoxesTest, NewOffersWhatTheFirstLookMissed) {
    // Outlines of four pixels are beyond what the rules of the first look can put together.
    samples::Canvas page(900, 700, 200);
    for (int index = 0; index < 12; ++index)
        page.DrawRect(60 + index % 4 * 120, 80 + index / 4 * 120, 32, 31, index < 6 ? 1 : 4);
    const std::string image = folders_.ProfileImages + "thick.tif";
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff, image);
    Open();
    DialogScript dialogs;
    dialogs.Type("Thick").Type(image);
    Click("New");
    const int found = Rows().topLevelItemCount();
    ASSERT_LT(found, 12);
    EXPECT_PRED2(
        test::Has, Notices(),
        std::to_string(found) + " boxes found. " + std::to_string(12 - found) + " more may be boxes: ");
    Find<QFrame>(*window_, "MessageStrip").findChild<QPushButton*>()->click();
    EXPECT_EQ(Panel("Message"), std::to_string(12 - found) + " more may be boxes.");
}

}  // namespace
}  // namespace tavrene::ui
