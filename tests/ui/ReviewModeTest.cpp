#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QTreeView>
#include <algorithm>
#include <filesystem>

#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::Button;
using test::DialogScript;
using test::Find;
using test::ReadText;
using test::TestForm;
using Names = std::vector<std::string>;
using Box = QMessageBox;

class ReviewModeTest : public test::DeskWindow {
  protected:
    ReviewModeTest() {
        AddProfile("Form", form_);
        form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {1}});
        form_.SaveScan(folders_.ProcessIn + "b.tif", {.checked = {2, 3}, .dx = 2, .dy = -1});
        form_.SaveScan(folders_.ProcessIn + "c.tif", {});
    }

    void ProcessAndReview() {
        Open();
        Click("Process");
        Click("Review");
        QApplication::processEvents();
    }

    QTreeView& List() { return Find<QTreeView>(*window_, "lvwReview"); }
    QComboBox& Choice() { return Find<QComboBox>(*window_, "cboProfiles"); }

    /// "+ a 100 *": ticked, open.
    Names Lines() {
        Names lines;
        const QAbstractItemModel& model = *List().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex name = model.index(row, 0);
            lines.push_back((name.data(Qt::CheckStateRole).toInt() == Qt::Checked ? "+ " : "") +
                            FromQt(name.data().toString() + " " + model.index(row, 1).data().toString()) +
                            (name.data(Qt::FontRole).value<QFont>().bold() ? " *" : ""));
        }
        return lines;
    }

    void ClickLine(int row) { ClickOn(List(), row); }
    int Selected() { return List().currentIndex().row(); }

    Names Marks() {
        Names marks;
        for (int row = 0; row < Rows().topLevelItemCount(); ++row) {
            const QTreeWidgetItem& item = *Rows().topLevelItem(row);
            marks.push_back(FromQt(item.text(0) + " " + item.text(1) + " " + item.text(2)) +
                            (item.font(0).bold() ? " ?" : ""));
        }
        return marks;
    }

    /// Where the box of a group is drawn.
    QPointF Middle(int group) {
        const QRectF place = View().Boxes().PlaceOf(group);
        EXPECT_FALSE(place.isNull()) << "no box " << group;
        return place.center();
    }

    bool Offers(const char* key) { return Find<QAction>(*window_, key).isEnabled(); }
    bool Shows(const char* key) {
        QApplication::processEvents();
        return Button(*window_, "MainToolbar", key).isVisible();
    }

    TestForm form_ = TestForm::Grid(2, 2);
};

TEST_F(ReviewModeTest, FormsAreCorrectedAcceptedAndRejectedByMouse) {
    ProcessAndReview();
    EXPECT_TRUE(List().isVisible() && Choice().isVisible() && Shows("Okay") && Shows("AcceptForm"));
    EXPECT_FALSE(Strip().isVisible() || Offers("New") || Offers("Save") || Offers("Okay"));
    EXPECT_FALSE(Choice().isEnabled());
    EXPECT_EQ(Lines(), (Names{"a 100", "b 100", "c 100"}));

    ClickLine(1);
    EXPECT_EQ(Panel("Message"), "Image [b.tif], Profile [Form]");
    EXPECT_EQ(Choice().currentText(), "Form");
    ClickRow(0);
    EXPECT_EQ(Panel("ElapsedTime"), "Checked:3 of 4");
    View().setFocus();
    ClickPage(Middle(2));
    EXPECT_EQ(Panel("ElapsedTime"), "Checked:2 of 4");
    EXPECT_EQ(Rows().currentItem()->text(0), "Q2");
    EXPECT_TRUE(Rows().hasFocus()) << "a key means the box that was clicked";
    const QPoint row = Rows().visualItemRect(Rows().currentItem()).center();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mouseClick(Rows().viewport(), button, {}, row);
        QTest::mouseDClick(Rows().viewport(), button, {}, row);
        QTest::mouseRelease(Rows().viewport(), button, {}, row);
        EXPECT_EQ(Panel("ElapsedTime"), "Checked:2 of 4") << "there and back, or not at all";
    }
    Click("Okay");
    EXPECT_EQ(Lines()[1], "+ b 100 *");
    const std::string saved = ReadText(folders_.ProcessOut + "b.xml");
    EXPECT_PRED2(test::Has, saved, "Q1\" Shift=\"2,-1\" Checked=\"1\"");
    EXPECT_PRED2(test::Has, saved, "Q2\" Shift=\"2,-1\" Checked=\"0\"");

    View().setFocus();
    Click("AcceptForm");
    EXPECT_EQ(Panel("File"), "Reviewed: 0 of 2");
    EXPECT_EQ(Selected(), 1);
    EXPECT_EQ(Lines()[1], "c 100 *") << "it goes on";
    Choice().setFocus();
    Click("RejectForm");
    EXPECT_FALSE(Offers("AcceptForm")) << "there is none below";
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"b.tif", "b.xml"}));
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"c.tif", "c.xml"}));

    Click("Review");
    EXPECT_TRUE(Strip().isVisible() && Offers("New"));
    EXPECT_FALSE(Offers("Save") || Button(*window_, "MainToolbar", "Delete").isEnabled());
    EXPECT_FALSE(List().isVisible() || Shows("Okay"));
    EXPECT_EQ(Panel("File") + Panel("Message") + Panel("ElapsedTime"), "Profiles:1, Active:1");
}

TEST_F(ReviewModeTest, GoesThroughTheFormsByKeys) {
    ProcessAndReview();
    EXPECT_TRUE(List().hasFocus());
    Press(List(), Qt::Key_Down);
    Press(List(), Qt::Key_Up);
    Press(List(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Lines()[0], "a 100") << "neither does moving the selection open a form, nor saving none";
    Press(List(), Qt::Key_Return);
    Rows().setFocus();
    EXPECT_EQ(Rows().selectedItems(), QList{Rows().topLevelItem(0)}) << "the row that the keys mean is seen";
    EXPECT_EQ(Rows().currentItem(), Rows().topLevelItem(0));
    Press(List(), Qt::Key_PageDown);
    EXPECT_EQ(Lines(), (Names{"a 100", "b 100 *", "c 100"}));
    EXPECT_EQ(Selected(), 1);

    Rows().setFocus();
    Rows().setCurrentItem(Rows().topLevelItem(0));
    Press(Rows(), Qt::Key_Down);
    EXPECT_EQ(Marks()[1], "Q2 1 54.6%") << "moving the selection flips nothing";
    Press(Rows(), Qt::Key_Space);
    EXPECT_EQ(Marks()[1], "Q2 0 54.6%");
    Press(Rows(), Qt::Key_Return);
    EXPECT_EQ(Marks()[1], "Q2 1 54.6%");
    Press(Rows(), Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(Lines()[1], "+ b 100 *");
    Press(Rows(), Qt::Key_G, Qt::ControlModifier);
    Press(Rows(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(In(folders_.ProcessFinal), (Names{"b.tif", "b.xml"}));
    Press(List(), Qt::Key_PageUp);
    EXPECT_EQ(Lines()[0], "a 100 *");
    Press(View(), Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"a.tif", "a.xml"}));

    for (const char* lines : {"a 100 *", "+ b 100 *"}) {
        Press(List(), Qt::Key_U, Qt::ControlModifier);
        EXPECT_TRUE(std::ranges::count(Lines(), lines) == 1) << lines;
    }
    EXPECT_FALSE(Offers("UndoDecision"));
    EXPECT_EQ(Lines(), (Names{"a 100", "+ b 100 *", "c 100"}));
    EXPECT_EQ(Panel("File"), "Reviewed: 1 of 3");
    for (int presses = 0; presses < 2; ++presses)
        Press(List(), Qt::Key_PageDown);
    EXPECT_EQ(Lines()[2], "c 100 *") << "the last one stays";
}

TEST_F(ReviewModeTest, CancelAtAPromptKeepsTheFormAndYesGoesOn) {
    ProcessAndReview();
    ClickLine(0);
    ClickRow(1);
    DialogScript answers;
    answers.Press(Box::Cancel).Press(Box::Cancel).Press(Box::Cancel).Press(Box::Yes);
    ClickLine(2);
    Click("Review");
    window_->close();
    EXPECT_EQ(answers.shown, Names(3, "Save changes to Form <a>?"));
    EXPECT_TRUE(window_->isVisible() && Button(*window_, "MainToolbar", "Review").isChecked());
    EXPECT_EQ(Selected(), 0);
    EXPECT_EQ(Marks()[1], "Q2 1 0.0%");

    form_.SaveScan(folders_.ProcessIn + "d.tif", {});
    Click("Process");
    EXPECT_EQ(Lines(), (Names{"+ a 100", "b 100", "c 100", "d 100"}));
    EXPECT_EQ(Selected(), 1) << "the first one that is not reviewed is an Enter away";
    EXPECT_FALSE(Offers("AcceptForm"));
}

TEST_F(ReviewModeTest, ARunHidesTheDecisionsAndIgnoresListAndImage) {
    ProcessAndReview();
    ClickLine(0);
    for (int i = 0; i < 3; ++i)
        form_.SaveScan(folders_.ProcessIn + "more" + std::to_string(i) + ".tif", {});
    int strikes = 0;
    const auto strike = [&] {
        ++strikes;
        EXPECT_FALSE(Find<QAction>(*window_, "Okay").isVisible());
        EXPECT_FALSE(Find<QAction>(*window_, "RejectForm").isVisible());
        ClickLine(1);
        QTest::keyClick(&List(), Qt::Key_Return);
        QTest::keyClick(&List(), Qt::Key_PageDown);
        EXPECT_FALSE(Choice().isEnabled()) << "a form was opened";
    };
    {
        const test::WhileRunning run(strike);
        Click("Process");
    }
    EXPECT_GT(strikes, 0);
    EXPECT_EQ(Lines(), (Names{"a 100", "b 100", "c 100", "more0 100", "more1 100", "more2 100"}));
    EXPECT_TRUE(Shows("Okay"));
}

TEST_F(ReviewModeTest, ZoomAndScrollStayBetweenForms) {
    ProcessAndReview();
    ClickLine(0);
    for (int i = 0; i < 8; ++i)
        Click("ZoomIn");
    View().horizontalScrollBar()->setValue(300);
    View().verticalScrollBar()->setValue(500);
    const auto place = [this] {
        return std::tuple(View().Zoom(), View().horizontalScrollBar()->value(),
                          View().verticalScrollBar()->value());
    };
    const auto before = place();
    EXPECT_EQ(std::get<2>(before), 500);
    Press(List(), Qt::Key_PageDown);
    EXPECT_EQ(place(), before);
    Click("AcceptForm");
    QApplication::processEvents();
    EXPECT_EQ(Lines()[1], "c 100 *");
    EXPECT_EQ(place(), before);

    // A box's line brings its rectangle into view, by key and by mouse.
    const std::function<void()> ways[] = {[this] { Rows().setCurrentItem(Rows().topLevelItem(0)); },
                                          [this] { ClickRow(0); }};
    for (const auto& choose : ways) {
        View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum());
        choose();
        EXPECT_TRUE(View().viewport()->rect().contains(View().mapFromScene(Middle(1))));
    }
    Click("Okay");

    // A profile starts at its top left corner, though its page has the size of the forms.
    View().verticalScrollBar()->setValue(500);
    Click("Review");
    ClickThumbnail(1);
    Click("ZoomIn");
    EXPECT_EQ(View().verticalScrollBar()->value(), View().verticalScrollBar()->minimum());
}

TEST_F(ReviewModeTest, DoubtfulBoxesStandOutAndAnotherProfileReadsTheFormAgain) {
    settings_.FillThreshold = 50;
    TestForm other = form_;
    other.boxes.pop_back();
    AddProfile("Zweite", other);
    ProcessAndReview();
    ClickLine(1);
    EXPECT_EQ(Marks(), (Names{"Q1 0 0.0%", "Q2 1 54.6% ?", "Q3 1 54.6% ?", "Q4 0 0.0%"}));
    EXPECT_EQ(Rows().headerItem()->text(2), "Ink");
    Press(List(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Rows().currentItem()->text(0), "Q2");
    EXPECT_TRUE(Rows().hasFocus());
    Press(Rows(), Qt::Key_Space);
    EXPECT_EQ(Marks()[1], "Q2 0 54.6% ?");
    Press(Rows(), Qt::Key_Space);
    Q_EMIT Choice().textActivated("Zweite");
    EXPECT_EQ(Panel("Message"), "b.tif [Zweite]");
    EXPECT_EQ(Marks(), (Names{"Q1 0 0.0%", "Q2 1 54.6% ?", "Q3 1 54.6% ?"}));
    EXPECT_EQ(Choice().currentText(), "Zweite");
    Click("Okay");
    QTest::keyClick(&Choice(), Qt::Key_F);
    EXPECT_EQ(Choice().currentText(), "Zweite") << "a letter chooses nothing";
    Click("Review");
    EXPECT_EQ(Rows().columnCount(), 1);
}

TEST_F(ReviewModeTest, TheListFollowsTheFolderUnderTheSelection) {
    ProcessAndReview();
    ClickLine(1);
    std::filesystem::copy(folders_.ProcessOut + "a.tif", folders_.ProcessOut + "0.tif");
    std::string document = ReadText(folders_.ProcessOut + "a.xml");
    test::WriteText(folders_.ProcessOut + "0.xml", document.replace(document.find("a.tif"), 5, "0.tif"));
    files_.Delete(folders_.ProcessOut + "c.xml");
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return Lines() == Names{"0 100", "a 100", "b 100 *"};
    })) << "by itself";
    EXPECT_EQ(Selected(), 2);
    files_.Delete(folders_.ProcessOut + "0.xml");
    Click("ZoomIn");
    EXPECT_EQ(Lines(), (Names{"a 100", "b 100 *"})) << "at once with a command";
    EXPECT_EQ(Selected(), 1);
}

}  // namespace
}  // namespace tavrene::ui
