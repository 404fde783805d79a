#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/FormWindow.h"

namespace tavrene::ui {
namespace {

using profiles::OmrBox;
using test::DialogScript;
using test::Find;
using test::TestForm;
using Names = std::vector<std::string>;

class BoxEditingTest : public test::FormWindow {
  protected:
    BoxEditingTest() { AddSpecimenProfile("Form", form_); }

    OmrBox SavedBox(int number) {
        Click("Save");
        return Saved("Form")[static_cast<std::size_t>(number) - 1];
    }
    QRectF SavedPlace(int number) { return PlaceOf(SavedBox(number)); }
    int CurrentRow() { return Rows().indexOfTopLevelItem(Rows().currentItem()); }
    bool IsInSight(const QPointF& point) {
        return View().viewport()->rect().contains(View().mapFromScene(point));
    }
    bool CanUndo() { return Find<QAction>(*window_, "Undo").isEnabled(); }
    void Undo() { Press(*window_, Qt::Key_Z, Qt::ControlModifier); }

    // The editor of the row's name, which has the focus.
    static QLineEdit& NameEditor() { return dynamic_cast<QLineEdit&>(*QApplication::focusWidget()); }
    void EditName(int row) {
        ClickRow(row);
        Press(Rows(), Qt::Key_F2);
    }
    static void TypeName(const QString& name, Qt::Key end) {
        NameEditor().setText(name);
        QTest::keyClick(&NameEditor(), end);
        QApplication::processEvents();
    }

    const QRectF first_ = PlaceOf(form_.boxes[0]);
    const std::string document_ = folders_.Profiles + "Form.Tvp";
};

TEST_F(BoxEditingTest, SelectingEveryBoxAtAnyZoomChangesNoCoordinate) {
    OpenForm();
    const std::vector<OmrBox> before = Saved("Form");
    for (const double zoom : {25.0, 33.0, 100.0, 250.0, 92.16}) {
        View().SetZoom(zoom);
        for (std::size_t i = 0; i < before.size(); ++i) {
            ClickRow(static_cast<int>(i));
            EXPECT_TRUE(IsInSight(PlaceOf(before[i]).center()));
            ClickPage(PlaceOf(before[i]).center());
            EXPECT_EQ(CurrentRow(), static_cast<int>(i)) << zoom;
        }
        EXPECT_FALSE(CanUndo()) << zoom;
    }
    Click("Save");
    EXPECT_EQ(Saved("Form"), before);
}

TEST_F(BoxEditingTest, BoxesAreMovedResizedAndDrawnOnThePageOnly) {
    form_.boxes[5].R = static_cast<std::int16_t>(form_.width + 50);  // lets the view scroll beside the page
    AddSpecimenProfile("Form", form_);
    OpenForm();
    const QRectF page(0, 0, form_.width, form_.height);
    Drag(first_.center(), first_.center() - QPointF(90, 90));
    EXPECT_EQ(SavedPlace(1), QRectF(QPointF(), first_.size()));
    Drag({10, 10}, {page.width() + 30, 100});
    EXPECT_EQ(SavedPlace(1).topRight(), QPointF(page.width(), 90));
    Drag(SavedPlace(1).bottomRight(), page.bottomRight() + QPointF(20, 20));
    EXPECT_EQ(SavedPlace(1).bottomRight(), page.bottomRight());
    const QRectF beside = PlaceOf(form_.boxes[5]);
    Drag({400, beside.center().y()}, {450, beside.center().y() - 50});
    EXPECT_EQ(SavedPlace(6), beside.translated(0, -50)) << "no further out, and as large as before";
    Drag({400, beside.center().y() - 50}, {330, beside.center().y() - 50});
    EXPECT_EQ(SavedPlace(6), beside.translated(-70, -50));
    Click("Add", "CfgToolbar");
    Drag({-20, -20}, {page.width() + 20, 30});
    EXPECT_EQ(SavedPlace(7), QRectF(0, 0, page.width(), 30));
}

// Row, box on the page and command agree, so that no other box is deleted than the one that is highlighted.
TEST_F(BoxEditingTest, OneBoxIsCurrentWhateverMadeItSo) {
    form_ = TestForm::Grid(3, 20, 24, 60, 70);
    form_.height = 1200;
    AddSpecimenProfile("Form", form_);
    OpenForm();
    View().SetZoom(250);
    const auto press = [this](int row, int releasedOn, Qt::MouseButton button) {
        const auto placeOf = [this](int k) { return Rows().visualItemRect(Rows().topLevelItem(k)).center(); };
        Rows().scrollToItem(Rows().topLevelItem(row));
        QTest::mousePress(Rows().viewport(), button, Qt::NoModifier, placeOf(row));
        QTest::mouseMove(Rows().viewport(), placeOf(releasedOn));
        QTest::mouseRelease(Rows().viewport(), button, Qt::NoModifier, placeOf(releasedOn));
    };
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the Tab key into the list",
         [this] {
             View().setFocus();
             Press(View(), Qt::Key_Tab);
         }},
        {"the Tab key in the name editor",
         [this] {
             EditName(40);
             TypeName("next", Qt::Key_Tab);
             QTest::keyClick(&NameEditor(), Qt::Key_Escape);
         }},
        {"the right button", [&] { press(3, 3, Qt::RightButton); }},
        {"the middle button", [&] { press(50, 50, Qt::MiddleButton); }},
        {"press and release on two rows", [&] { press(22, 24, Qt::LeftButton); }},
        {"the Ctrl key",
         [this] {
             ClickRow(2);
             Press(Rows(), Qt::Key_Space, Qt::ControlModifier);
         }},
        {"the End key", [this] { Press(Rows(), Qt::Key_End); }},
    };
    for (const auto& [way, act] : ways) {
        SCOPED_TRACE(way);
        act();
        const std::string name = RowTexts().at(static_cast<std::size_t>(CurrentRow()));
        BoxLayer& boxes = View().Boxes();
        const QPointF middle = boxes.PlaceOf(boxes.SelectedBox()).center();
        EXPECT_TRUE(Rows().currentItem()->isSelected() && Rows().selectedItems().size() == 1);
        EXPECT_TRUE(IsInSight(middle));
        Press(Rows(), Qt::Key_Delete);
        EXPECT_EQ(boxes.BoxAt(middle), 0);
        const Names left = RowTexts();
        EXPECT_EQ(std::count(left.begin(), left.end(), name), 0);
        EXPECT_EQ(left.size(), form_.boxes.size() - 1);
        Undo();
    }
    ClickRow(4);
    Strip().setFocus();
    Press(Strip(), Qt::Key_Delete);
    EXPECT_EQ(RowTexts().size(), form_.boxes.size()) << "the strip has the focus";
}

// Every box is clicked while a neighbour is current, at each of its corners and sides and in its middle.
TEST_F(BoxEditingTest, HandlesGiveWayToTheBoxesOfADenseForm) {
    constexpr int kColumns = 18;
    form_ = TestForm::Grid(kColumns, 16);
    form_.width = form_.height = 800;
    for (int k = 0; k < 288; ++k) {
        OmrBox& box = form_.boxes[static_cast<std::size_t>(k)];
        box.L = static_cast<std::int16_t>(30 + 40 * (k % kColumns));
        box.T = static_cast<std::int16_t>(30 + 40 * (k / kColumns));
        box.R = static_cast<std::int16_t>(box.L + 30);
        box.B = static_cast<std::int16_t>(box.T + 30);
    }
    AddSpecimenProfile("Form", form_);
    OpenForm();
    for (const double zoom : {40.0, 100.0}) {
        View().SetZoom(zoom);
        int hits = 0;
        for (int k = 0; k < 288; ++k) {
            const int column = k % 3 - 1;
            const int row = k / 3 % 3 - 1;
            const int neighbour = k + column + row * kColumns;
            const QRectF place = PlaceOf(form_.boxes[static_cast<std::size_t>(k)]);
            if (neighbour >= 0 && neighbour < 288)
                ClickRow(neighbour);
            const QPointF at = place.center() + QPointF(column * 15, row * 15);
            Drag(at, at + QPointF(2, 2) * 100 / zoom);
            hits += CurrentRow() == k ? 1 : 0;
        }
        EXPECT_EQ(hits, 288) << zoom;
    }
    EXPECT_FALSE(CanUndo());
}

TEST_F(BoxEditingTest, KeysDuringADragMoveNothingAndEscapeEndsItBeforeItClosesTheWindow) {
    OpenForm();
    const QPointF away = first_.center() + QPointF(40, 40);
    Mouse(QEvent::MouseButtonPress, first_.center());
    Mouse(QEvent::MouseMove, away);
    Press(View(), Qt::Key_Right);
    Mouse(QEvent::MouseMove, first_.center());
    Mouse(QEvent::MouseButtonRelease, first_.center());
    EXPECT_EQ(View().Boxes().PlaceOf(1), first_);
    EXPECT_EQ(SavedPlace(1), first_);

    Mouse(QEvent::MouseButtonPress, first_.center());
    Mouse(QEvent::MouseMove, away);
    Press(View(), Qt::Key_Escape);
    Mouse(QEvent::MouseMove, away);
    Mouse(QEvent::MouseButtonRelease, away);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(CanUndo());
    const DialogScript none;
    Find<QCheckBox>(*window_, "chkActive").click();  // no change that is asked about
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(BoxEditingTest, BoxesAreDeletedAddedAndSavedAndTheProfileOpensAnew) {
    OpenForm();
    ClickRow(1);
    Press(Rows(), Qt::Key_Delete);
    EXPECT_EQ(CurrentRow(), 1) << "the next box is current";
    ClickPage(PlaceOf(form_.boxes[4]).center());
    Click("Delete", "CfgToolbar");
    Click("Add", "CfgToolbar");
    View().SetZoom(50);
    Drag({400, 300}, {430, 326});
    Drag({100, 400}, {100, 400});  // a rectangle of no size
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q3", "Q4", "Q6", "Un-named-7"}));
    Find<QCheckBox>(*window_, "chkActive").click();
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:1");
    EXPECT_EQ(SavedPlace(5), QRectF(400, 300, 30, 26));
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:0");
    for (int k = 0; k < 3; ++k)
        Undo();
    EXPECT_EQ(RowTexts().size(), 6U);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::No);
    ClickThumbnail(1);
    EXPECT_FALSE(Find<QAction>(*window_, "Redo").isEnabled());
    Drag({400, 370}, {430, 390});
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q3", "Q4", "Q6", "Un-named-7", "Un-named-6"}));
}

TEST_F(BoxEditingTest, NamesAreTakenAsTheyAreTypedAndOneThatCannotBeWrittenIsShown) {
    AddSpecimenProfile("Other", form_);
    OpenForm();
    EditName(2);
    TypeName("Größe", Qt::Key_Escape);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(RowTexts()[2], "Q3");
    EditName(2);
    TypeName("Größe", Qt::Key_Return);
    EXPECT_EQ(Rows().topLevelItem(2)->toolTip(0), "<span>Größe</span>");
    EditName(3);
    NameEditor().setText("typed");
    EXPECT_EQ(SavedBox(4).Name, "typed") << "what is still being typed counts";
    EXPECT_EQ(SavedBox(3).Name, "Größe");

    const std::string before = test::ReadText(document_);
    EditName(4);
    QApplication::clipboard()->setText("from\ta\r\ntable \"<&\n");
    NameEditor().paste();
    TypeName(NameEditor().text() + "!", Qt::Key_Return);
    EXPECT_EQ(RowTexts()[4], "from a table \"<&!");
    ClickRow(5);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    Click("Save");
    EXPECT_PRED2(test::Has, dialogs.shown.at(0), "from a table \"<&!");
    EXPECT_EQ(CurrentRow(), 4);
    dialogs.Press(QMessageBox::Yes).Press(QMessageBox::Ok);
    Press(Strip(), Qt::Key_Down);
    EXPECT_EQ(SelectedThumbnail(), 1);
    EXPECT_EQ(Strip().currentIndex().row(), 0) << "the keyboard goes on from the profile that stays open";
    EXPECT_EQ(test::ReadText(document_), before);
}

TEST_F(BoxEditingTest, ABoxDrawnByHandIsReadByARunWhichClosesTheProfile) {
    TestForm known = form_;
    known.boxes.pop_back();
    AddSpecimenProfile("Form", known);
    Open();
    ClickThumbnail(1);
    Click("Add", "CfgToolbar");
    const QRectF place = PlaceOf(form_.boxes.back());
    Drag(place.topLeft(), place.bottomRight());
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {6}, .dx = 20, .dy = -20});
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Yes);
    test::WhileRunning other([this] {
        if (Panel("File") == "a.tif")
            ClickThumbnail(1);  // ignored, and nothing is marked as open
    });
    Click("Process");
    EXPECT_PRED2(test::Has, test::ReadText(folders_.ProcessOut + "a.xml"),
                 "\"Un-named-6\" Shift=\"20,-20\" Checked=\"1\"");
    EXPECT_EQ(SelectedThumbnail(), 0);
    EXPECT_FALSE(Find<QCheckBox>(*window_, "chkActive").isEnabled());
    const std::string before = test::ReadText(document_);
    Drag(place.center(), place.center() + QPointF(20, 20));
    Click("Save");
    EXPECT_EQ(test::ReadText(document_), before) << "the boxes of a run are no profile";
    ClickThumbnail(1);
    dialogs.Type("Other").Press(QMessageBox::No);
    Find<QAction>(*window_, "RenameProfile").trigger();
    EXPECT_PRED2(test::Has, dialogs.shown.back(), "Results were read with the profile Form");
}

TEST_F(BoxEditingTest, WheelZoomsAroundThePointerAndTheMiddleButtonPans) {
    OpenForm();
    View().SetZoom(300);
    QApplication::processEvents();
    const QPointF position(200, 150);
    const auto pagePoint = [&] { return View().viewportTransform().inverted().map(position); };
    const QPointF held = pagePoint();
    QWheelEvent wheel(position, View().viewport()->mapToGlobal(position), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &wheel);
    EXPECT_EQ(View().Zoom(), 375);
    EXPECT_LT((View().viewportTransform().map(held) - position).manhattanLength(), 2);

    const int scrolled = View().verticalScrollBar()->value();
    const QPointF point = pagePoint();
    Mouse(QEvent::MouseButtonPress, point, Qt::MiddleButton);
    Mouse(QEvent::MouseMove, point + QPointF(0, -20), Qt::MiddleButton);
    Mouse(QEvent::MouseButtonRelease, point, Qt::MiddleButton);
    EXPECT_EQ(View().verticalScrollBar()->value(), scrolled + 75);
}

}  // namespace
}  // namespace tavrene::ui
