#include <filesystem>
#include <map>

#include "ui/FormWindow.h"

namespace tavrene::ui {
namespace {

using test::DialogScript;
using test::Find;
using test::TestForm;

class TestProfileTest : public test::FormWindow {
  protected:
    TestProfileTest() {
        AddSpecimenProfile("Form", form_);
        form_.SaveScan(folders_.ProcessOut + "a.tif", {.checked = {2, 4}, .dx = 5, .dy = -3});
        TestForm strange = TestForm::Grid(4, 5, 30, 90, 20);
        strange.SaveScan(folders_.ProcessOut + "b.tif", {});
        test::WriteText(folders_.ProcessOut + "c.png", "no image");
    }

    // Everything below the working folder, with what it holds.
    std::map<std::string, std::string> Tree() const {
        std::map<std::string, std::string> tree;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(app::ToPath(settings_.WorkDir)))
            tree[app::FromPath(entry.path())] =
                entry.is_regular_file() ? test::ReadText(app::FromPath(entry.path())) : "";
        return tree;
    }
};

TEST_F(TestProfileTest, ScansAreTriedWithoutWritingAnything) {
    OpenForm();
    ClickRow(0);
    Press(Rows(), Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_X);
    const auto before = Tree();
    ASSERT_GT(before.size(), 10U);
    DialogScript dialogs;
    dialogs.Do([this](QDialog& dialog) {
        auto& rows = dynamic_cast<QTreeWidget&>(*dialog.findChild<QWidget*>("TestBoxes"));
        auto& page = dynamic_cast<ImageView&>(*dialog.findChild<QWidget*>("TestPage"));
        const auto text = [&](const char* name) { return FromQt(Find<QLabel>(dialog, name).text()); };
        const auto ticked = [&] {
            std::vector<int> numbers;
            for (int number = 1; number <= rows.topLevelItemCount(); ++number)
                if (page.Boxes().StyleOf(number) == imaging::RectStyle::Checked)
                    numbers.push_back(number);
            return numbers;
        };
        EXPECT_PRED2(test::Has, text("lblVerdict"), "Recognised: 6 of the 6");
        EXPECT_EQ(FromQt(rows.topLevelItem(0)->text(0)), "x") << "what is not saved is tried, too";
        EXPECT_EQ(ticked(), (std::vector<int>{2, 4}));
        EXPECT_EQ(page.Boxes().PlaceOf(1).topLeft(), PlaceOf(form_.boxes[0]).topLeft() + QPointF(5, 3));
        EXPECT_PRED2(test::Has, text("lblCounts"), "2 of 6 boxes are ticked");
        auto& slider = Find<QSlider>(dialog, "sldThreshold");
        slider.setValue(99);
        EXPECT_TRUE(ticked().empty());
        EXPECT_PRED2(test::Has, text("lblCounts"), "0 of 6");
        slider.setValue(30);
        EXPECT_EQ(ticked().size(), 2U);
        Find<QAbstractButton>(dialog, "optPrecise").click();
        EXPECT_PRED2(test::Has, text("lblVerdict"), "100 % of the boxes lie where they should");
        EXPECT_EQ(ticked(), (std::vector<int>{2, 4}));
        Press(dialog, Qt::Key_PageDown);
        EXPECT_PRED2(test::Has, text("lblVerdict"), "does not match");
        EXPECT_EQ(page.Boxes().StyleOf(6), imaging::RectStyle::Skipped);
        Find<QAbstractButton>(dialog, "optPlain").click();
        EXPECT_PRED2(test::Has, text("lblVerdict"), "more than half have to be");
        Press(dialog, Qt::Key_PageDown);
        EXPECT_EQ(text("lblVerdict"), "c.png: Image not in bitmap format");
        EXPECT_TRUE(page.Boxes().IsEmpty());
        Press(dialog, Qt::Key_PageUp);
        Press(dialog, Qt::Key_PageUp);
        EXPECT_EQ(ticked().size(), 2U);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    Press(*window_, Qt::Key_F9);
    EXPECT_EQ(Tree(), before);
    EXPECT_NE(store_.ReadSettingValue(app::kApplicationName, app::kCommonSection, "FillThreshold"), "30");
}

TEST_F(TestProfileTest, AThresholdIsTakenOverAndAnotherProfileThatWinsIsNamed) {
    AddSpecimenProfile("Also", form_);
    Open();
    ClickThumbnail(2);
    DialogScript dialogs;
    dialogs.Do([](QDialog& dialog) {
        EXPECT_PRED2(test::Has, FromQt(Find<QLabel>(dialog, "lblVerdict").text()),
                     "A run takes this page for \"Also\" (100 %). This profile matches, too: 6 of the 6");
        auto& use = Find<QPushButton>(dialog, "cmdUseThreshold");
        EXPECT_FALSE(use.isEnabled());
        Find<QSlider>(dialog, "sldThreshold").setValue(40);
        use.click();
        EXPECT_FALSE(use.isEnabled());
        dialog.reject();
    });
    Press(*window_, Qt::Key_F9);
    EXPECT_EQ(store_.ReadSettingValue(app::kApplicationName, app::kCommonSection, "FillThreshold"), "40");
}

}  // namespace
}  // namespace tavrene::ui
