#include <QComboBox>
#include <QListView>
#include <QTreeView>

#include "painter/ImageFiles.h"
#include "ui/DeskWindow.h"
#include "ui/reviewing/SheetModel.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using Names = std::vector<std::string>;
using Box = QMessageBox;

// Sixty forms with a faint dot in their third box, and one without.
class DoubtSheetWindowTest : public test::DeskWindow {
  protected:
    DoubtSheetWindowTest() {
        AddProfile("Form", form_);
        samples::Canvas page = form_.Paint({.checked = {1}});
        page.FillRect(form_.boxes[2].L + 6, form_.boxes[2].T + 6, 8, 4);
        const imaging::Bitmap scan = samples::ToBilevel(page);
        for (int k = 10; k < 70; ++k)
            samples::SaveImage(scan, imaging::ImageFormat::Tiff,
                               folders_.ProcessIn + "form" + std::to_string(k) + ".tif");
        form_.SaveScan(folders_.ProcessIn + "plain.tif", {.checked = {1}});
        Open();
        Click("Process");
        Click("Review");
    }

    static QListView& Sheet(const QDialog& dialog) { return Find<QListView>(dialog, "lvwSheet"); }

    static int Count(const QDialog& dialog) { return Sheet(dialog).model()->rowCount(); }

    static void WaitUntil(const QDialog& dialog, int count) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Count(dialog) == count; }, 60'000));
    }

    // They come by themselves.
    static void WaitForPictures(const QDialog& dialog, int rows) {
        const QAbstractItemModel& boxes = *Sheet(dialog).model();
        for (int row = 0; row < rows; ++row)
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return boxes.index(row, 0).data(SheetModel::kBox).toString() == "Q3"; }, 60'000));
    }

    static void WaitUntilAllAreFound(const QDialog& dialog) { WaitUntil(dialog, 60); }

    // The subject above or below the present one, from the opened list.
    static void Choose(const QDialog& dialog, Qt::Key key) {
        auto& subject = Find<QComboBox>(dialog, "cboSheet");
        Press(subject, Qt::Key_Space);
        QTest::keyClick(subject.view(), key);
        QTest::keyClick(subject.view(), Qt::Key_Return);
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

TEST_F(DoubtSheetWindowTest, IsJudgedScreenByScreenByKeys) {
    DialogScript script;
    script.Do([](QDialog& dialog) {
        WaitUntilAllAreFound(dialog);
        QListView& sheet = Sheet(dialog);
        Choose(dialog, Qt::Key_Down);
        EXPECT_EQ(QApplication::focusWidget(), &sheet) << "the arrows move there again";
        Choose(dialog, Qt::Key_Up);
        WaitUntilAllAreFound(dialog);
        WaitForPictures(dialog, 40);
        Press(sheet, Qt::Key_Right);
        Press(sheet, Qt::Key_Down);
        EXPECT_EQ(sheet.currentIndex().row(), 9);
        Press(sheet, Qt::Key_Left, Qt::ShiftModifier);
        Press(sheet, Qt::Key_Space);
        const auto isChecked = [&sheet](int row) {
            return sheet.model()->index(row, 0).data(SheetModel::kChecked).toBool();
        };
        EXPECT_TRUE(isChecked(8) && isChecked(9) && !isChecked(7) && !isChecked(10));
        Press(sheet, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_EQ(Count(dialog), 20) << "forty to a screen";
        WaitForPictures(dialog, 20);
        Press(sheet, Qt::Key_A, Qt::ControlModifier);
        Press(sheet, Qt::Key_Space);
        Press(sheet, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_FALSE(dialog.isVisible()) << "nothing is left to judge";
    });
    Press(*window_, Qt::Key_F9);
    EXPECT_EQ(Panel("Message"), "60 forms reviewed, 22 boxes corrected on the sheet.");
    EXPECT_EQ(Panel("File"), "Reviewed: 60 of 61");
    const std::string document = test::ReadText(folders_.ProcessOut + "form69.xml");
    EXPECT_PRED2(test::Has, document, "Name=\"Q3\" Shift=\"0,0\" Checked=\"1\"");

    script.Press(Box::No).PressEnter();
    Press(*window_, Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(In(folders_.ProcessFinal), Names());
    Press(*window_, Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(In(folders_.ProcessFinal).size(), 122U);
    EXPECT_EQ(script.shown.back().substr(0, 31), "Accept 61 forms without doubt?\n");
    Press(*window_, Qt::Key_U, Qt::ControlModifier);
    EXPECT_EQ(In(folders_.ProcessFinal), Names());
    EXPECT_EQ(Panel("File"), "Reviewed: 60 of 61");
}

TEST_F(DoubtSheetWindowTest, AsksAboutWhatIsNotSavedAndLeadsToAForm) {
    ClickOn(Find<QTreeView>(*window_, "lvwReview"), 0);
    ClickRow(0);
    DialogScript script;
    script.Press(Box::Cancel).Press(Box::No);
    Press(*window_, Qt::Key_F9);
    EXPECT_EQ(script.shown, Names{"Save changes to Form <form10>?"});
    QString asked;
    script.Do([&asked](QDialog& dialog) {
        WaitUntilAllAreFound(dialog);
        QListView& sheet = Sheet(dialog);
        Press(sheet, Qt::Key_Space);
        // The question stands over a dialog that the script is still busy with.
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, &answer, [&asked] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            asked = box->text();
            box->button(Box::No)->click();
        });
        answer.start(1);
        Press(sheet, Qt::Key_Escape);
        answer.stop();
        EXPECT_TRUE(dialog.isVisible());
        answer.start(1);
        auto& subject = Find<QComboBox>(dialog, "cboSheet");
        subject.setCurrentIndex(1);
        answer.stop();
        EXPECT_EQ(subject.currentIndex(), 0);
        EXPECT_EQ(Count(dialog), 60) << "what was turned round is still there";
        Press(sheet, Qt::Key_Space);
        Press(sheet, Qt::Key_Down);
        Press(sheet, Qt::Key_Return);
    });
    Press(*window_, Qt::Key_F9);
    EXPECT_EQ(asked, "1 mark was turned round and not confirmed. Go on without them?");
    EXPECT_EQ(Panel("Message"), "Image [form18.tif], Profile [Form]");
    EXPECT_EQ(Rows().currentItem()->text(0) + Rows().currentItem()->text(1), "Q30");
    const double large = View().Zoom();
    Press(Rows(), Qt::Key_PageDown);
    EXPECT_LT(View().Zoom(), large) << "the zoom is the person's own again";
}

TEST_F(DoubtSheetWindowTest, GoingOnFromAFormThatIsNotSavedAsksAndSavesIt) {
    ClickOn(Find<QTreeView>(*window_, "lvwReview"), 0);
    ClickRow(0);
    Press(*window_, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Rows().currentItem()->text(0), "Q3");
    DialogScript script;
    script.PressEnter();
    Press(*window_, Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(script.shown, Names{"Save changes to Form <form10>?"});
    EXPECT_EQ(Panel("Message"), "Image [form11.tif], Profile [Form]");
    EXPECT_EQ(Panel("File"), "Reviewed: 1 of 61");

    ClickRow(0);
    script.PressEnter().Do([](QDialog& dialog) {
        WaitUntil(dialog, 58);
        dialog.reject();
    });
    Press(*window_, Qt::Key_F9);
    ClickOn(Find<QTreeView>(*window_, "lvwReview"), 2);
    ClickRow(0);
    script.PressEnter().PressEnter();
    Press(*window_, Qt::Key_F9, Qt::ShiftModifier);
    EXPECT_EQ(script.shown.back().substr(0, 30), "Accept 4 forms without doubt?\n");
    EXPECT_EQ(In(folders_.ProcessFinal).size(), 8U) << "what was just saved is as it was";
}

}  // namespace
}  // namespace tavrene::ui
