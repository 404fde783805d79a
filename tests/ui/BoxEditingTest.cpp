#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/DeskWindow.h"
#include "ui/page/RectItem.h"

namespace tavrene::ui {
namespace {

using profiles::OmrBox;
using test::DialogScript;
using test::Find;
using test::TestForm;
using Names = std::vector<std::string>;

QPointF MiddleOf(const OmrBox& box) {
    return QPointF(box.L + box.R, box.T + box.B) / 2;
}

QRectF PlaceOf(const OmrBox& box) {
    return {QPointF(box.L, box.T), QPointF(box.R, box.B)};
}

class BoxEditingTest : public test::DeskWindow {
  protected:
    BoxEditingTest() { AddSpecimenProfile("Form", form_); }

    void OpenForm() {
        Open();
        ClickThumbnail(1);
        ASSERT_EQ(Rows().topLevelItemCount(), static_cast<int>(form_.boxes.size()));
    }
    QRectF SavedPlace(int number) {
        Click("Save");
        return PlaceOf(Saved("Form")[static_cast<std::size_t>(number) - 1]);
    }
    int CurrentRow() { return Rows().indexOfTopLevelItem(Rows().currentItem()); }
    static QLineEdit& NameEditor() { return dynamic_cast<QLineEdit&>(*QApplication::focusWidget()); }
    static void TypeName(const QString& name, Qt::Key end) {
        NameEditor().setText(name);
        QTest::keyClick(&NameEditor(), end);
        QApplication::processEvents();
    }
    std::string NameOf(int number) { return Saved("Form")[static_cast<std::size_t>(number) - 1].Name; }

    TestForm form_ = TestForm::Grid(3, 2);
    OmrBox first_ = form_.boxes[0];
};

TEST_F(BoxEditingTest, SelectingEveryBoxAtAnyZoomChangesNoCoordinate) {
    OpenForm();
    const std::vector<OmrBox> before = Saved("Form");
    auto& view = dynamic_cast<ImageView&>(View());
    for (const double zoom : {25.0, 33.0, 100.0, 250.0, 92.16}) {
        view.SetZoom(zoom);
        for (std::size_t i = 0; i < before.size(); ++i) {
            ClickRow(static_cast<int>(i));
            EXPECT_TRUE(View().viewport()->rect().contains(View().mapFromScene(MiddleOf(before[i]))));
            ClickPage(MiddleOf(before[i]));
            EXPECT_EQ(CurrentRow(), static_cast<int>(i)) << zoom;
        }
        EXPECT_FALSE(Find<QAction>(*window_, "Undo").isEnabled()) << zoom;
    }
    Click("Save");
    EXPECT_EQ(Saved("Form"), before);
}

TEST_F(BoxEditingTest, MouseAndKeysMoveAndResizeAndEveryStepGoesBackAndForth) {
    OpenForm();
    const QRectF place = PlaceOf(first_);
    dynamic_cast<ImageView&>(View()).SetZoom(250);
    Drag(place.center(), place.center() + QPointF(30, 12));
    EXPECT_EQ(SavedPlace(1), place.translated(30, 12));
    Drag(place.bottomRight() + QPointF(30, 12), place.bottomRight() + QPointF(40, 19));
    EXPECT_EQ(SavedPlace(1), place.translated(30, 12).adjusted(0, 0, 10, 7));
    Press(View(), Qt::Key_Left);
    Press(View(), Qt::Key_Down, Qt::ShiftModifier);
    const QRectF last = place.translated(29, 22).adjusted(0, 0, 10, 7);
    EXPECT_EQ(SavedPlace(1), last);

    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SavedPlace(1), place.translated(30, 12).adjusted(0, 0, 10, 7));
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(SavedPlace(1), place);
    EXPECT_FALSE(Find<QAction>(*window_, "Undo").isEnabled());
    for (int step = 0; step < 4; ++step)
        Press(*window_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(SavedPlace(1), last);
}

TEST_F(BoxEditingTest, BoxesAreMovedResizedAndDrawnOnThePageOnly) {
    form_.boxes[5].R = static_cast<std::int16_t>(form_.width + 50);  // lets the view scroll beside the page
    AddSpecimenProfile("Form", form_);
    OpenForm();
    const QRectF page(0, 0, form_.width, form_.height);
    const QPointF middle = MiddleOf(first_);
    Drag(middle, middle - QPointF(90, 90));
    EXPECT_EQ(SavedPlace(1), QRectF(QPointF(), PlaceOf(first_).size()));
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
    dynamic_cast<ImageView&>(View()).SetZoom(250);
    const auto press = [this](int row, Qt::MouseButton button) {
        Rows().scrollToItem(Rows().topLevelItem(row));
        QTest::mousePress(Rows().viewport(), button, Qt::NoModifier,
                          Rows().visualItemRect(Rows().topLevelItem(row)).center());
    };
    const auto release = [this](int row, Qt::MouseButton button) {
        const QPoint point = Rows().visualItemRect(Rows().topLevelItem(row)).center();
        QTest::mouseMove(Rows().viewport(), point);
        QTest::mouseRelease(Rows().viewport(), button, Qt::NoModifier, point);
    };
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the Tab key into the list",
         [this] {
             View().setFocus();
             Press(View(), Qt::Key_Tab);
         }},
        {"the Tab key in the name editor",
         [this] {
             ClickRow(40);
             Press(Rows(), Qt::Key_F2);
             TypeName("next", Qt::Key_Tab);
             QTest::keyClick(&NameEditor(), Qt::Key_Escape);
         }},
        {"the right button",
         [&] {
             press(3, Qt::RightButton);
             release(3, Qt::RightButton);
         }},
        {"the middle button",
         [&] {
             press(50, Qt::MiddleButton);
             release(50, Qt::MiddleButton);
         }},
        {"press and release on two rows",
         [&] {
             ClickRow(20);
             press(22, Qt::LeftButton);
             release(24, Qt::LeftButton);
         }},
        {"the Ctrl key",
         [this] {
             ClickRow(2);
             Press(Rows(), Qt::Key_Space, Qt::ControlModifier);
         }},
        {"the End key", [this] { Press(Rows(), Qt::Key_End); }},
    };
    for (const auto& [way, act] : ways) {
        act();
        const int row = CurrentRow();
        const std::string name = RowTexts().at(static_cast<std::size_t>(row));
        BoxLayer& boxes = dynamic_cast<ImageView&>(View()).Boxes();
        const QRectF place = boxes.PlaceOf(boxes.SelectedBox());
        EXPECT_TRUE(Rows().currentItem()->isSelected() && Rows().selectedItems().size() == 1) << way;
        EXPECT_TRUE(View().viewport()->rect().contains(View().mapFromScene(place.center()))) << way;
        Press(Rows(), Qt::Key_Delete);
        EXPECT_TRUE(boxes.BoxAt(place.center()) == 0) << way;
        const Names left = RowTexts();
        EXPECT_EQ(std::count(left.begin(), left.end(), name), 0) << way;
        EXPECT_EQ(left.size(), form_.boxes.size() - 1) << way;
        Press(*window_, Qt::Key_Z, Qt::ControlModifier);
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
        dynamic_cast<ImageView&>(View()).SetZoom(zoom);
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
    EXPECT_FALSE(Find<QAction>(*window_, "Undo").isEnabled());
}

TEST_F(BoxEditingTest, AnArrowKeyMovesNoBoxThatIsBeingDragged) {
    OpenForm();
    const QPointF middle = MiddleOf(first_);
    Mouse(QEvent::MouseButtonPress, middle);
    Mouse(QEvent::MouseMove, middle + QPointF(40, 40));
    Press(View(), Qt::Key_Right);
    Mouse(QEvent::MouseMove, middle);
    Mouse(QEvent::MouseButtonRelease, middle);
    EXPECT_EQ(dynamic_cast<ImageView&>(View()).Boxes().PlaceOf(1), PlaceOf(first_));
    EXPECT_EQ(SavedPlace(1), PlaceOf(first_));
    Press(View(), Qt::Key_Right);
    EXPECT_EQ(SavedPlace(1), PlaceOf(first_).translated(1, 0));
}

TEST_F(BoxEditingTest, TheFirstProfileOpensByKeyboard) {
    AddSpecimenProfile("Form", form_);
    Open();
    Press(Strip(), Qt::Key_Down);
    EXPECT_EQ(Rows().topLevelItemCount(), 6);
}

TEST_F(BoxEditingTest, EscapeEndsADragAndOnlyThenClosesTheWindow) {
    OpenForm();
    const QPointF middle = MiddleOf(first_);
    Mouse(QEvent::MouseButtonPress, middle);
    Mouse(QEvent::MouseMove, middle + QPointF(50, 50));
    Press(View(), Qt::Key_Escape);
    Mouse(QEvent::MouseMove, middle + QPointF(60, 60));
    Mouse(QEvent::MouseButtonRelease, middle + QPointF(60, 60));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(Find<QAction>(*window_, "Undo").isEnabled());
    const DialogScript none;
    Find<QCheckBox>(*window_, "chkActive").click();  // no change that is asked about
    Press(View(), Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(BoxEditingTest, DeletedAndAddedBoxesAreNumberedAnewBySaving) {
    OpenForm();
    ClickRow(1);
    Press(Rows(), Qt::Key_Delete);
    EXPECT_EQ(CurrentRow(), 1) << "the next box is current";
    ClickPage(MiddleOf(form_.boxes[4]));
    Click("Delete", "CfgToolbar");
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q3", "Q4", "Q6"}));
    Click("Add", "CfgToolbar");
    dynamic_cast<ImageView&>(View()).SetZoom(50);
    Drag({400, 300}, {430, 326});
    EXPECT_EQ(RowTexts().back(), "Un-named-7");
    Drag({100, 400}, {100, 400});
    EXPECT_EQ(Rows().topLevelItemCount(), 5) << "a rectangle of no size";
    Find<QCheckBox>(*window_, "chkActive").click();
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:1");
    Click("Save");
    EXPECT_EQ(Panel("File"), "Profiles:1, Active:0");
    EXPECT_PRED2(test::Has, ProfileLog(), "Saved Profile: Form\r\n");
    TestForm expected = form_;
    expected.boxes.erase(expected.boxes.begin() + 4);
    expected.boxes.erase(expected.boxes.begin() + 1);
    expected.boxes.push_back({"Un-named-7", 400, 300, 430, 326});
    EXPECT_EQ(test::ReadText(folders_.Profiles + "Form.Tvp"),
              expected.ProfileText(folders_.ProfileImages + "Form", false));
    for (int step = 0; step < 3; ++step)
        Press(*window_, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q2", "Q3", "Q4", "Q5", "Q6"}));
    const QList<QGraphicsItem*> items = View().items();
    EXPECT_EQ(std::count_if(items.begin(), items.end(),
                            [](QGraphicsItem* item) { return dynamic_cast<RectItem*>(item) != nullptr; }),
              6);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::No);
    ClickThumbnail(1);
    EXPECT_FALSE(Find<QAction>(*window_, "Redo").isEnabled());
    Drag({400, 370}, {430, 390});
    EXPECT_EQ(RowTexts(), (Names{"Q1", "Q3", "Q4", "Q6", "Un-named-7", "Un-named-6"}));
}

TEST_F(BoxEditingTest, NamesAreEditedInPlaceAndCleanedOfWhatNoDocumentHolds) {
    OpenForm();
    ClickRow(2);
    Press(Rows(), Qt::Key_F2);
    TypeName("Größe", Qt::Key_Escape);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(RowTexts()[2], "Q3");
    Press(Rows(), Qt::Key_F2);
    TypeName("Größe", Qt::Key_Return);
    EXPECT_EQ(Rows().topLevelItem(2)->toolTip(0), "<span>Größe</span>");
    ClickRow(3);
    Press(Rows(), Qt::Key_F2);
    NameEditor().setText("typed");
    Click("Save");  // takes over what is still being typed
    EXPECT_EQ(NameOf(3), "Größe");
    EXPECT_EQ(NameOf(4), "typed");

    ClickRow(4);
    Press(Rows(), Qt::Key_F2);
    QApplication::clipboard()->setText("from\ta\r\ntable \"<&\n");
    NameEditor().paste();
    TypeName(NameEditor().text() + "!", Qt::Key_Return);
    EXPECT_EQ(RowTexts()[4], "from a table !");
    Click("Save");
    EXPECT_EQ(NameOf(5), "from a table !");
}

TEST_F(BoxEditingTest, ANameOfAnotherProgramThatCannotBeWrittenIsShown) {
    const std::string path = folders_.Profiles + "Form.Tvp";
    std::string before = test::ReadText(path);
    before.replace(before.find("\"Q2\""), 4, "\"Yes &amp; no\"");
    test::WriteText(path, before);
    AddSpecimenProfile("Other", form_);
    OpenForm();
    ClickRow(5);
    Press(View(), Qt::Key_Right);
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Ok);
    Click("Save");
    EXPECT_PRED2(test::Has, dialogs.shown.at(0), "Yes & no");
    EXPECT_EQ(CurrentRow(), 1);
    dialogs.Press(QMessageBox::Yes).Press(QMessageBox::Ok);
    Press(Strip(), Qt::Key_Down);
    EXPECT_EQ(SelectedThumbnail(), 1);
    EXPECT_EQ(Strip().currentIndex().row(), 0) << "the keyboard goes on from the profile that stays open";
    EXPECT_EQ(test::ReadText(path), before);
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
    form_.SaveScan(folders_.ProcessIn + "a.tif", {.checked = {6}});
    form_.SaveScan(folders_.ProcessIn + "b.tif", {.checked = {6}, .dx = 20, .dy = -20});
    DialogScript dialogs;
    dialogs.Press(QMessageBox::Yes);
    test::WhileRunning other([this] {
        if (Panel("File") == "a.tif")
            ClickThumbnail(1);  // ignored, and nothing is marked as open
    });
    Click("Process");
    for (const auto& [name, shift] : {std::pair("a.xml", "0,0"), {"b.xml", "20,-20"}}) {
        const std::string text = test::ReadText(folders_.ProcessOut + name);
        EXPECT_NE(text.find("\"Un-named-6\" Shift=\"" + std::string(shift) + "\" Checked=\"1\""),
                  std::string::npos)
            << text;
    }
    EXPECT_EQ(SelectedThumbnail(), 0);
    EXPECT_FALSE(Find<QCheckBox>(*window_, "chkActive").isEnabled());
    const std::string before = test::ReadText(folders_.Profiles + "Form.Tvp");
    Drag(place.center(), place.center() + QPointF(20, 20));
    Click("Save");
    EXPECT_EQ(test::ReadText(folders_.Profiles + "Form.Tvp"), before) << "the boxes of a run are no profile";
}

TEST_F(BoxEditingTest, WheelZoomsAroundThePointerAndTheMiddleButtonPans) {
    OpenForm();
    auto& view = dynamic_cast<ImageView&>(View());
    view.SetZoom(300);
    QApplication::processEvents();
    const QPointF position(200, 150);
    const QPointF held = view.viewportTransform().inverted().map(position);
    QWheelEvent wheel(position, view.viewport()->mapToGlobal(position), {}, {0, 120}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    EXPECT_EQ(view.Zoom(), 375);
    EXPECT_LT((view.viewportTransform().map(held) - position).manhattanLength(), 2);

    const int scrolled = view.verticalScrollBar()->value();
    const QPointF point = view.viewportTransform().inverted().map(position);
    Mouse(QEvent::MouseButtonPress, point, Qt::MiddleButton);
    Mouse(QEvent::MouseMove, point + QPointF(0, -20), Qt::MiddleButton);
    Mouse(QEvent::MouseButtonRelease, point, Qt::MiddleButton);
    EXPECT_EQ(view.verticalScrollBar()->value(), scrolled + 75);
}

TEST_F(BoxEditingTest, DamagedProfilesAndALostSpecimenStayInReach) {
    test::WriteText(folders_.Profiles + "Text.Tvp", "no document");
    const std::string cut = AddSpecimenProfile("Cut", form_);
    std::string text = test::ReadText(cut);
    test::WriteText(cut, text.erase(text.find(" Count"), 10));
    AddSpecimenProfile("Lost", form_, false);
    const std::string lost = folders_.ProfileImages + "Lost.tif";
    files_.Delete(lost);
    Open();
    EXPECT_EQ(Thumbnails(), 4);
    EXPECT_EQ(Panel("File"), "Profiles:2, Active:1");
    EXPECT_PRED2(test::Has, ProfileLog(), "No thumbnail for profile Lost.Tvp: its specimen image " + lost);
    Click("Save");  // nothing is open
    Click("Delete");
    ClickThumbnail(3);
    EXPECT_EQ(Rows().topLevelItemCount(), 6);
    EXPECT_FALSE(Find<QCheckBox>(*window_, "chkActive").isChecked());
    EXPECT_EQ(Panel("Message"), "Profile [Lost], Image [Lost.tif]");
    Click("Save");
    EXPECT_EQ(Notices(), "The specimen image " + lost + " is not there any more.");
    ClickPage(MiddleOf(form_.boxes[5]));
    EXPECT_EQ(CurrentRow(), 5) << "boxes can be reached without their page";

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
    EXPECT_PRED2(test::Has, ProfileLog(), "Deleted Profile: Cut\r\n");
    EXPECT_EQ(In(folders_.Profiles), (Names{"Form.Tvp", "Lost.Tvp", "Tavrene_Profiles.tif", "Text.Tvp"}));
    EXPECT_EQ(Thumbnails(), 3);
    EXPECT_EQ(SelectedThumbnail(), 0);
    Press(Strip(), Qt::Key_Down);
    EXPECT_NE(SelectedThumbnail(), 0);
    EXPECT_EQ(Rows().topLevelItemCount(), 6) << "the keyboard opens as well";
}

TEST_F(BoxEditingTest, ALostSpecimenIsLocatedWithoutSavingTheBoxes) {
    const std::string moved = folders_.ProfileImages + "moved.tif";
    files_.Move(folders_.ProfileImages + "Form.tif", moved);
    OpenForm();
    ClickRow(0);
    Press(View(), Qt::Key_Right);
    Press(Rows(), Qt::Key_F2);
    TypeName("edited", Qt::Key_Return);
    DialogScript dialogs;
    dialogs.Type(moved);
    Find<QFrame>(*window_, "MessageStrip").findChild<QPushButton*>()->click();
    EXPECT_EQ(Notices(), "");
    EXPECT_EQ(View().sceneRect().width(), form_.width);
    EXPECT_EQ(Panel("Message"), "Profile [Form], Image [moved.tif]");
    EXPECT_EQ(RowTexts()[0], "edited");
    EXPECT_EQ(Saved("Form"), form_.boxes);
    EXPECT_PRED2(test::Has, test::ReadText(folders_.Profiles + "Form.Tvp"), moved);
    EXPECT_TRUE(Find<QAction>(*window_, "Undo").isEnabled());
}

}  // namespace
}  // namespace tavrene::ui
