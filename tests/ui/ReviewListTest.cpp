#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>

#include "painter/ImageFiles.h"
#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::Find;
using Names = std::vector<std::string>;

// Three forms: "form2" has a box in doubt, its third.
class ReviewListTest : public test::DeskWindow {
  protected:
    ReviewListTest() {
        AddProfile("Form", form_);
        form_.SaveScan(folders_.ProcessIn + "form1.tif", {.checked = {1}});
        form_.SaveScan(folders_.ProcessIn + "form10.tif", {.checked = {1}});
        samples::Canvas page = form_.Paint({.checked = {1}});
        page.FillRect(form_.boxes[2].L + 6, form_.boxes[2].T + 6, 8, 4);
        samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff,
                           folders_.ProcessIn + "form2.tif");
        Open();
        Click("Process");
        Click("Review");
    }

    QTreeView& List() { return Find<QTreeView>(*window_, "lvwReview"); }

    /// The names and what the column of that title says, as they are shown.
    Names Shown(const char* title = "Form") {
        const QAbstractItemModel& model = *List().model();
        int column = 0;
        while (model.headerData(column, Qt::Horizontal).toString() != title)
            ++column;
        Names shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown.push_back(FromQt(model.index(row, column).data().toString()));
        return shown;
    }

    void Filter(int kind) { Find<QComboBox>(*window_, "cboFilter").setCurrentIndex(kind); }
    std::string Opened() { return Panel("Message").substr(0, Panel("Message").find(']')); }
    bool Offers(const char* key) {
        QApplication::processEvents();
        return Find<QAction>(*window_, key).isEnabled();
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

TEST_F(ReviewListTest, IsSortedAndFilteredAndCountsDoubtsByItself) {
    EXPECT_EQ(Shown(), (Names{"form1", "form10", "form2"}));
    EXPECT_EQ(Shown("Profile"), Names(3, "Form"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Shown("Doubts") == Names{"0", "0", "1"}; }));
    List().header()->setSortIndicator(0, Qt::AscendingOrder);
    EXPECT_EQ(Shown(), (Names{"form1", "form2", "form10"}));
    Press(List(), Qt::Key_Return);
    Press(List(), Qt::Key_PageDown);
    EXPECT_EQ(Opened(), "Image [form2.tif") << "the form below, as the list is shown";
    Find<QLineEdit>(*window_, "txtFilter").setText("M1");
    EXPECT_EQ(Shown(), (Names{"form1", "form2", "form10"})) << "the open form stays";
    Press(List(), Qt::Key_PageDown);
    EXPECT_EQ(Shown(), (Names{"form1", "form10"}));
    Find<QLineEdit>(*window_, "txtFilter").clear();
    Filter(2);
    EXPECT_EQ(Shown(), (Names{"form2", "form10"})) << "in doubt, and the open one";
    Press(*window_, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Find<QComboBox>(*window_, "cboFilter").hasFocus());
}

TEST_F(ReviewListTest, SavingGoesOnWhereTheListLetsTheFormGo) {
    Press(List(), Qt::Key_Return);
    Click("Okay");
    EXPECT_EQ(Opened(), "Saved Form: form1") << "it may be accepted next";
    Filter(1);
    EXPECT_EQ(Shown("Reviewed"), (Names{"yes", "", ""}));
    Click("Okay");
    EXPECT_EQ(Opened(), "Image [form10.tif");
    Click("Okay");
    EXPECT_EQ(Opened(), "Image [form2.tif");
    EXPECT_EQ(Rows().currentItem()->text(0), "Q3") << "it goes on to what is in doubt";
    EXPECT_GE(View().Zoom() / 100 * 24, 27);
    Press(Rows(), Qt::Key_2);
    EXPECT_EQ(Rows().currentItem()->text(0) + Rows().currentItem()->text(1), "Q21");
    Press(Rows(), Qt::Key_7);
    EXPECT_EQ(Rows().currentItem()->text(0), "Q2") << "there is no seventh box";
    Click("Okay");
    EXPECT_EQ(Shown(), Names{"form2"});
    Press(Rows(), Qt::Key_D, Qt::ControlModifier);
    Click("Review");
    Click("Review");
    EXPECT_FALSE(List().currentIndex().isValid()) << "all are reviewed";
}

TEST_F(ReviewListTest, NothingIsDecidedWhileAnotherLineIsSelected) {
    Press(List(), Qt::Key_Return);
    EXPECT_TRUE(Offers("AcceptForm") && Offers("Okay"));
    Press(List(), Qt::Key_Down);
    EXPECT_FALSE(Offers("AcceptForm") || Offers("RejectForm") || Offers("Okay"));
    Press(List(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(In(folders_.ProcessFinal).empty());
    Press(List(), Qt::Key_Up);
    EXPECT_TRUE(Offers("AcceptForm"));
    Press(List(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Opened(), "Image [form2.tif") << "counted on the way";
    Press(Rows(), Qt::Key_Home);
    for (const Qt::Key key : {Qt::Key_Q, Qt::Key_3, Qt::Key_Space})
        Press(Rows(), key);
    EXPECT_EQ(Rows().currentItem()->text(0), "Q3");
    EXPECT_FALSE(Rows().currentItem()->icon(2).isNull()) << "turned by hand";
    Click("Okay");
    Press(Rows(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Opened(), "Saved Form: form2") << "no other form has any";
    Press(List(), Qt::Key_Up);
    EXPECT_FALSE(Offers("AcceptForm") || Find<QComboBox>(*window_, "cboProfiles").isEnabled());
    Press(List(), Qt::Key_PageUp);
    EXPECT_EQ(Opened(), "Image [form1.tif") << "above the one that is selected";
}

}  // namespace
}  // namespace tavrene::ui
