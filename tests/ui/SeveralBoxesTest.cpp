#include <QAccessible>
#include <QElapsedTimer>
#include <QMenu>
#include <filesystem>

#include "profiles/OmrsOfBoxes.h"
#include "support/SourceFolder.h"
#include "ui/FormWindow.h"
#include "ui/profiling/PrintReader.h"

namespace tavrene::ui {
namespace {

using profiles::OmrBox;
using test::DialogScript;
using test::Find;
using test::TestForm;
using Names = std::vector<std::string>;

class SeveralBoxesWindowTest : public test::FormWindow {
  protected:
    void OpenForm() {
        AddSpecimenProfile("Form", form_);
        FormWindow::OpenForm();
        View().SetZoom(100);
    }
    QPointF Middle(int number) const {
        return PlaceOf(form_.boxes[static_cast<std::size_t>(number) - 1]).center();
    }
    int SelectedRows() { return static_cast<int>(Rows().selectedItems().size()); }
    void HoldKey(Qt::Key key, int repeats) {
        Press(View(), key);
        for (; repeats > 0; --repeats) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
            QApplication::sendEvent(&View(), &event);
        }
    }
    std::vector<std::pair<int, int>> SavedCorners() {
        Click("Save");
        std::vector<std::pair<int, int>> corners;
        for (const OmrBox& box : Saved("Form"))
            corners.emplace_back(box.L, box.T);
        return corners;
    }
};

TEST_F(SeveralBoxesWindowTest, MouseAndKeysSelectMoveAndDeleteThemTogether) {
    OpenForm();
    Drag({30, 30}, {200, 105});  // around the first row
    EXPECT_EQ(SelectedRows(), 3);
    ClickPage(Middle(5), Qt::ControlModifier);
    EXPECT_EQ(SelectedRows(), 4);
    ClickPage(Middle(1), Qt::ControlModifier);
    HoldKey(Qt::Key_Right, 4);
    EXPECT_EQ(SavedCorners(), (std::vector<std::pair<int, int>>{
                                  {60, 70}, {119, 70}, {173, 70}, {60, 124}, {119, 124}, {168, 124}}));
    Drag(Middle(2) + QPointF(5, 0), Middle(2) + QPointF(15, 100));
    EXPECT_EQ(SavedCorners().at(4), std::pair(129, 224));
    Press(View(), Qt::Key_Z, Qt::ControlModifier);
    Press(View(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SavedCorners().at(4), std::pair(114, 124));
    Press(View(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(SavedCorners().at(4), std::pair(119, 124));
    Press(View(), Qt::Key_Z, Qt::ControlModifier);

    ClickRow(1);
    const auto place = [this](int row) { return Rows().visualItemRect(Rows().topLevelItem(row)).center(); };
    QTest::mouseClick(Rows().viewport(), Qt::LeftButton, Qt::ShiftModifier, place(3));
    QTest::mouseClick(Rows().viewport(), Qt::LeftButton, Qt::ControlModifier, place(2));
    EXPECT_EQ(SelectedRows(), 2);
    Press(Rows(), Qt::Key_Down, Qt::ShiftModifier);
    Press(Rows(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(SelectedRows(), 3) << "from the row on that is current";
    Press(Rows(), Qt::Key_Delete);
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q2", "Q3"}));
    Press(*window_, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(SelectedRows(), 3);
    ClickPage(Middle(3));
    EXPECT_EQ(SelectedRows(), 1);
}

TEST_F(SeveralBoxesWindowTest, NamesAreShownOnThePageBeforeTheyAreTaken) {
    OpenForm();
    DialogScript dialogs;
    dialogs.Do([&](QDialog& dialog) {
        auto& pattern = Find<QLineEdit>(dialog, "txtPattern");
        auto& take = Find<QPushButton>(dialog, "cmdOK");
        pattern.setText("{row} & {column}");
        EXPECT_FALSE(take.isEnabled());
        EXPECT_PRED2(test::Has, FromQt(Find<QLabel>(dialog, "lblOutcome").text()), "\"1 & 1\" holds");
        EXPECT_EQ(FromQt(View().Boxes().LabelOf(6)), "2 & 3");
        Find<QTabWidget>(dialog, "tabWays").setCurrentIndex(1);
        Find<QPlainTextEdit>(dialog, "txtNames").setPlainText("1\toften\n\"rarely\"");
        EXPECT_EQ(FromQt(View().Boxes().LabelOf(1) + '|' + View().Boxes().LabelOf(2)), "1 often|rarely");
        EXPECT_PRED2(test::Has, FromQt(Find<QLabel>(dialog, "lblOutcome").text()), "are left out");
        Find<QTabWidget>(dialog, "tabWays").setCurrentIndex(0);
        pattern.setText("Q{row} {column}");
        Find<QLineEdit>(dialog, "txtColumns").setText("often, rarely, never");
        EXPECT_TRUE(take.isEnabled());
        QTest::keyClick(&pattern, Qt::Key_Return);
    });
    Press(*window_, Qt::Key_F2, Qt::ControlModifier);
    EXPECT_EQ(RowTexts(), (Names{"Q1 often", "Q1 rarely", "Q1 never", "Q2 often", "Q2 rarely", "Q2 never"}));
    EXPECT_TRUE(View().Boxes().LabelOf(1).isEmpty());
    Trigger("BoxNames");
    EXPECT_EQ(FromQt(View().Boxes().LabelOf(3)), "Q1 never");
    ClickRow(4);
    View().setFocus();
    Press(View(), Qt::Key_Tab);
    EXPECT_EQ(View().Boxes().SelectedBox(), 6);
    Press(View(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(View().Boxes().SelectedBox(), 5);
    Trigger("MoveRowsUp");
    EXPECT_EQ(RowTexts().at(3), "Q2 rarely");
    Trigger("SortByPlace");
    EXPECT_EQ(RowTexts().at(3), "Q2 often");
    EXPECT_EQ(View().Boxes().SelectedBox(), 5);
    Trigger("GroupFrames");
    Trigger("SnapToPrint");
    Open();
    for (const char* const toggle : {"BoxNames", "GroupFrames", "SnapToPrint"})
        EXPECT_TRUE(Find<QAction>(*window_, toggle).isChecked()) << toggle << " at the next start";
}

TEST_F(SeveralBoxesWindowTest, GroupsAreFramedAndKeptBesideTheProfile) {
    OpenForm();
    Trigger("GroupByRows");
    const auto frames = [this] {
        std::string text;
        for (const GroupFrame& frame : View().Boxes().Groups())
            text += FromQt(frame.text) + "|";
        return text;
    };
    EXPECT_EQ(frames(), "Q1: one mark|Q4: one mark|");
    DialogScript dialogs;
    dialogs.Do([](QDialog& dialog) {
        Find<QLineEdit>(dialog, "txtGroup").setText("Sizes");
        Find<QComboBox>(dialog, "cboTakes").setCurrentIndex(2);
        dialog.accept();
    });
    ClickPage(Middle(3));
    ClickPage(Middle(6), Qt::ControlModifier);
    Trigger("GroupBoxes");
    EXPECT_EQ(frames(), "Q1: one mark|Q4: one mark|Sizes: at least one mark|");
    EXPECT_EQ(View().Boxes().Groups().back().place, PlaceOf(form_.boxes[2]).united(PlaceOf(form_.boxes[5])));
    dialogs.Do([](QDialog& dialog) {
        EXPECT_EQ(Find<QLineEdit>(dialog, "txtGroup").text(), "Sizes") << "what was said of it is kept";
        EXPECT_EQ(Find<QComboBox>(dialog, "cboTakes").currentIndex(), 2);
        dialog.reject();
    });
    Trigger("GroupBoxes");
    Click("Save");
    const auto kept = profiles::ReadBoxGroups(files_, folders_.Profiles + "Form.Tvp");
    ASSERT_TRUE(kept && kept->size() == 3);
    EXPECT_EQ(kept->back(), (profiles::BoxGroup{"Sizes", {"Q3", "Q6"}, profiles::Takes::AtLeastOne}));
    Trigger("GroupByNames");
    EXPECT_EQ(frames(), "") << "these names tell none";
    dialogs.Press(QMessageBox::No);
    ClickThumbnail(1);
    EXPECT_EQ(frames(), "Q1: one mark|Q4: one mark|Sizes: at least one mark|");
    dialogs.Press(QMessageBox::Yes);
    Click("Delete");
    EXPECT_FALSE(files_.FileExists(profiles::BoxGroupsPath(folders_.Profiles + "Form.Tvp")));
}

TEST_F(SeveralBoxesWindowTest, MenusAndSpaceLeaveThemSelectedAndReadersHearOfAll) {
    OpenForm();
    Press(*window_, Qt::Key_A, Qt::ControlModifier);
    Press(Rows(), Qt::Key_Space);
    EXPECT_EQ(SelectedRows(), 6);
    const auto ask = [this](QAbstractScrollArea& area, const QPoint& place) {
        QTest::mouseClick(area.viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, place, area.viewport()->mapToGlobal(place));
        QApplication::sendEvent(area.viewport(), &asked);
        delete area.findChild<QMenu*>("ContextMenu");
        return SelectedRows();
    };
    EXPECT_EQ(ask(Rows(), Rows().visualItemRect(Rows().topLevelItem(3)).center()), 6);
    const auto onScreen = [this](const QPointF& point) {
        return View().viewportTransform().map(point).toPoint();
    };
    EXPECT_EQ(ask(View(), onScreen(Middle(2))), 6);
    for (int box = 0; box < 6; ++box)
        EXPECT_TRUE(QAccessible::queryAccessibleInterface(&View())->child(box)->state().selected);
    ClickPage(Middle(1));
    ClickPage(Middle(2), Qt::ControlModifier);
    EXPECT_EQ(ask(View(), onScreen(Middle(5))), 1) << "that of another box means this one";
}

// A stand-in takes the place of the reader, which need not be there.
TEST_F(SeveralBoxesWindowTest, NamesAreSuggestedFromThePrintWhereItCanBeRead) {
    OpenForm();
    const std::string reader = config_.Path() + "/tesseract";
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(config_.Path()));
    const auto suggest = [this](const std::function<void(QDialog&, QPushButton&)>& look) {
        DialogScript dialogs;
        dialogs.Do([&](QDialog& dialog) {
            Find<QTabWidget>(dialog, "tabWays").setCurrentIndex(1);
            look(dialog, Find<QPushButton>(dialog, "cmdSuggest"));
            dialog.reject();
        });
        Press(*window_, Qt::Key_F2, Qt::ControlModifier);
    };
    suggest([](QDialog&, QPushButton& button) {
        EXPECT_FALSE(button.isEnabled());
        EXPECT_PRED2(test::Has, FromQt(button.toolTip()), "not installed");
    });
    const auto install = [&](const std::string& does) {
        test::WriteText(reader, "#!/bin/sh\n" + does);
        std::filesystem::permissions(reader, std::filesystem::perms::owner_all);
    };
    install("[ \"$2\" = stdout ] && printf '5\\t1\\t1\\t1\\t1\\t1\\t90\\t72\\t16\\t18\\t95\\tyes\\n'\n");
    suggest([this](QDialog&, QPushButton& button) {
        button.click();
        EXPECT_EQ(FromQt(View().Boxes().LabelOf(1)), "yes");
        EXPECT_EQ(FromQt(View().Boxes().LabelOf(2)), "");
    });
    install("exit 3\n");
    suggest([](QDialog& dialog, QPushButton& button) {
        button.click();
        EXPECT_PRED2(test::Has, FromQt(Find<QLabel>(dialog, "lblOutcome").text()), "could not read");
    });
    install("exec /bin/sleep 60\n");
    QElapsedTimer time;
    time.start();
    EXPECT_PRED2(test::Has, FromQt(ReadPrintOf("x", *window_, 50).failure), "too long");
    QTimer::singleShot(100, window_.get(), [] { QApplication::activeModalWidget()->close(); });
    const ReadPrint cancelled = ReadPrintOf("x", *window_);
    EXPECT_TRUE(cancelled.table.empty() && cancelled.failure.isEmpty());
    EXPECT_LT(time.elapsed(), 30000);
    EXPECT_EQ(RowTexts().front(), "Q1") << "nothing is taken unasked";
    qputenv("PATH", path);
}

// Keystrokes and clicks from New to a profile whose boxes are all there and named.
TEST_F(SeveralBoxesWindowTest, AProfileIsCompleteAfterFewKeys) {
    const std::string samples = test::SourceFolder() + "/samples/";
    std::filesystem::copy(samples + "blanks", app::ToPath(folders_.ProfileImages));
    TestForm exam = TestForm::Grid(10, 20);
    exam.width = 900;
    exam.height = 1250;
    for (std::size_t k = 0; k < exam.boxes.size(); ++k)
        if (k % 10 > 4) {
            exam.boxes[k].L = static_cast<std::int16_t>(exam.boxes[k].L + 120);
            exam.boxes[k].R = static_cast<std::int16_t>(exam.boxes[k].R + 120);
        }
    exam.SaveScan(folders_.ProfileImages + "Exam.tif", {});
    Open();
    for (const auto& [name, least, most] :
         {std::tuple("PatientQuestionnaire", 20U, 60U), std::tuple("StaffSurvey", 20U, 60U),
          std::tuple("Exam", 200U, 80U)}) {
        std::size_t effort = 0;
        const auto type = [&](const std::string& text) {
            effort += text.size() + 1;
            return text;
        };
        const auto press = [&](Qt::Key key) {
            ++effort;
            Press(*window_, key, Qt::ControlModifier);
        };
        DialogScript dialogs;
        dialogs.Type(type("P" + std::string(1, *name))).Type(type(name + std::string(".tif")));
        dialogs.Do([&](QDialog& dialog) {
            effort += 2;
            Find<QCheckBox>(dialog, "chkSort").click();
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        press(Qt::Key_N);
        press(Qt::Key_F2);
        press(Qt::Key_S);
        const std::vector<OmrBox> boxes = Saved("P" + std::string(1, *name));
        std::set<std::string> names;
        for (const OmrBox& box : boxes) {
            EXPECT_FALSE(profiles::IsUnnamed(box.Name));
            names.insert(box.Name);
        }
        EXPECT_GE(boxes.size(), least) << name;
        EXPECT_EQ(names.size(), boxes.size()) << name;
        EXPECT_LE(effort, most) << name;
        RecordProperty(name, static_cast<int>(effort));
    }
    EXPECT_EQ(Saved("PE").back().Name + Saved("PE").at(5).Name, "Q40 5Q2 1")
        << "one block of columns after the other";
    EXPECT_EQ(Notices(), "") << "the boxes by which a page is aligned are of both";
}

}  // namespace
}  // namespace tavrene::ui
