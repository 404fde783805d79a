#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QTabWidget>

#include "ui/DeskWindow.h"
#include "ui/shell/Language.h"

namespace tavrene::ui {
namespace {

using test::Find;
using Names = std::vector<std::string>;

class KeyboardTest : public test::DeskWindow {
  protected:
    KeyboardTest() { AddSpecimenProfile("Form", form_); }

    /// Everything that Tab reaches, in its order.
    std::vector<QWidget*> Stops() {
        std::vector<QWidget*> stops;
        window_->activateWindow();
        QApplication::processEvents();
        View().setFocus();
        do {
            QWidget* const stop = window_->focusWidget();
            // A text stays one while Tab goes through its links.
            if (stops.empty() || stop != stops.back())
                stops.push_back(stop);
            QTest::keyClick(stop, Qt::Key_Tab);
        } while (!View().hasFocus());
        return stops;
    }

    QImage PictureOf(const QWidget& widget) {
        QApplication::processEvents();
        return window_->grab({widget.mapTo(window_.get(), QPoint()), widget.size()}).toImage();
    }

    /// The menu that the right button opens at a place of a list or the page.
    Names MenuAt(QAbstractScrollArea& area, const QPoint& place) {
        QTest::mousePress(area.viewport(), Qt::RightButton, Qt::NoModifier, place);
        return MenuOf(area, {QContextMenuEvent::Mouse, place, area.viewport()->mapToGlobal(place)});
    }
    Names MenuByKey(QAbstractScrollArea& area) {
        const QPoint middle = area.viewport()->rect().center();
        return MenuOf(area, {QContextMenuEvent::Keyboard, middle, area.viewport()->mapToGlobal(middle)});
    }

    QPoint OnPage(int box) {
        return View().viewportTransform().map(View().Boxes().PlaceOf(box).center()).toPoint();
    }

    test::TestForm form_ = test::TestForm::Grid(2, 2);

  private:
    static Names MenuOf(QAbstractScrollArea& area, QContextMenuEvent asked) {
        QApplication::sendEvent(area.viewport(), &asked);
        Names offered;
        if (auto* const menu = area.findChild<QMenu*>("ContextMenu")) {
            for (const QAction* const action : menu->actions())
                offered.push_back(FromQt(action->objectName()));
            delete menu;
        }
        return offered;
    }
};

TEST_F(KeyboardTest, WhateverHasTheKeyboardLooksLikeItInEveryMode) {
    for (int i = 1; i <= 2; ++i)
        form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(i) + ".tif", {.checked = {2}});
    test::WriteText(folders_.ProcessIn + "torn.png", "no image");
    Open();
    std::set<std::string> reached;
    const auto look = [&] {
        for (QWidget* const stop : Stops()) {
            stop->setFocus();
            const QImage with = PictureOf(*stop);
            (stop == &View() ? static_cast<QWidget*>(&Rows()) : &View())->setFocus();
            EXPECT_NE(with, PictureOf(*stop)) << FromQt(stop->objectName());
            reached.insert(FromQt(stop->objectName()));
        }
    };
    ClickThumbnail(1);
    look();
    Click("Process");
    look();
    Click("Review");
    Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
    look();
    Find<QTabWidget>(*window_, "tabReview").setCurrentIndex(1);
    look();
    for (const char* name : {"ImgThumbnail1", "chkActive", "ImgEdit1", "lvwSettings", "ZoomPercent",
                             "lvwReview", "cboProfiles", "lvwUnread", "SummaryFiles"})
        EXPECT_TRUE(reached.contains(name)) << name;
    EXPECT_GT(reached.size(), 12U);
}

// As the parts stand on the screen: the side, the page, its boxes, the status bar.
TEST_F(KeyboardTest, TabGoesThroughThePartsAsTheyStandOnTheScreen) {
    for (int i = 1; i <= 2; ++i)
        form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(i) + ".tif", {.checked = {2}});
    Open();
    const auto order = [this](const Names& wanted) {
        Names reached;
        for (const QWidget* const stop : Stops())
            if (const std::string name = FromQt(stop->objectName()); std::ranges::count(wanted, name) > 0)
                reached.push_back(name);
        return reached;
    };
    ClickThumbnail(1);
    const Names desk = {"ImgEdit1", "lvwSettings", "ZoomPercent", "ImgThumbnail1", "chkActive"};
    EXPECT_EQ(order(desk), desk);
    Click("Process");
    Click("Review");
    Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
    const Names review = {"ImgEdit1",  "lvwSettings", "ZoomPercent", "cboFilter",
                          "txtFilter", "lvwReview",   "cboProfiles"};
    EXPECT_EQ(order(review), review);
}

TEST_F(KeyboardTest, TheMenuOfAFormDecidesOnThatForm) {
    for (int i = 1; i <= 3; ++i)
        form_.SaveScan(folders_.ProcessIn + "scan" + std::to_string(i) + ".tif", {.checked = {2}});
    Open();
    Click("Process");
    Click("Review");
    auto& list = Find<QTreeView>(*window_, "lvwReview");
    const auto place = [&list](int row) { return list.visualRect(list.model()->index(row, 0)).center(); };
    const Names decisions = {"Okay", "AcceptForm", "RejectForm", "NextDoubt"};
    EXPECT_EQ(MenuAt(list, place(1)), decisions);
    EXPECT_EQ(FromQt(window_->windowTitle()), "scan2[*] - Tavrene CheckBoxes") << "it is opened for that";
    EXPECT_EQ(MenuByKey(list), decisions) << "of the line that has the keyboard";
    EXPECT_EQ(MenuAt(list, {20, list.viewport()->height() - 2}), Names()) << "there is no form";
    Find<QAction>(*window_, "RejectForm").trigger();
    EXPECT_EQ(In(folders_.ProcessReject), (Names{"scan2.tif", "scan2.xml"}));
}

// One letter twice in a menu, or for a menu and for what lies below it, would reach neither by one key.
TEST_F(KeyboardTest, EveryLetterThatIsUnderlinedMeansOneThing) {
    const auto speak = [this](const char* code) {
        app::WriteWindow(store_, "Language", code);
        SpeakChosenLanguage(store_);
    };
    const auto speakEnglish = qScopeGuard([&] { speak("en"); });
    const auto lettersOf = [](const QList<QAction*>& actions) {
        QStringList letters;
        for (const QAction* const action : actions)
            if (!action->isSeparator())
                letters += QKeySequence::mnemonic(action->text()).toString();
        return letters;
    };
    const auto expectUnique = [](QStringList letters, const QString& where) {
        EXPECT_FALSE(letters.contains("")) << FromQt(where + ": " + letters.join(','));
        EXPECT_EQ(letters.removeDuplicates(), 0) << FromQt(where + ": " + letters.join(','));
    };
    for (const char* const code : {"en", "de"}) {
        speak(code);
        Open();
        for (const QMenu* const menu : window_->menuBar()->findChildren<QMenu*>())
            if (menu->objectName() != "Language")
                expectUnique(lettersOf(menu->actions()), menu->title());
        QStringList letters = lettersOf(window_->menuBar()->actions());
        for (const auto* const button : window_->centralWidget()->findChildren<QAbstractButton*>())
            if (button->text().contains('&'))
                letters += QKeySequence::mnemonic(button->text()).toString();
        for (const auto* const label : window_->centralWidget()->findChildren<QLabel*>())
            if (label->buddy() != nullptr)
                letters += QKeySequence::mnemonic(label->text()).toString();
        EXPECT_GT(letters.size(), 9);
        expectUnique(letters, QString("window in ") + code);
    }
}

TEST_F(KeyboardTest, ABoxIsPutMovedAndResizedByKeysAlone) {
    Open();
    ClickThumbnail(1);
    ClickRow(3);
    const QRectF fourth = View().Boxes().PlaceOf(4);
    Press(Rows(), Qt::Key_Insert);
    QRectF place = View().Boxes().PlaceOf(5);
    EXPECT_EQ(place.size(), fourth.size());
    EXPECT_EQ(QApplication::focusWidget(), &View()) << "so that the arrow keys mean the box";
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, const QRectF& expected) {
        Press(View(), key, modifiers);
        place = View().Boxes().PlaceOf(5);
        EXPECT_EQ(place, expected) << key;
    };
    press(Qt::Key_Right, Qt::ShiftModifier, place.translated(10, 0));
    press(Qt::Key_Up, {}, place.translated(0, -1));
    press(Qt::Key_Right, Qt::ControlModifier, place.adjusted(0, 0, 1, 0));
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier, place.adjusted(0, 0, 0, 10));
    for (int i = 0; i < 20; ++i)
        Press(View(), Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(View().Boxes().PlaceOf(5).width(), 1) << "nothing is turned inside out";
    Press(View(), Qt::Key_Insert);
    EXPECT_FALSE(View().Boxes().PlaceOf(6).intersects(View().Boxes().PlaceOf(5))) << "not upon each other";
    Press(View(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_EQ(Saved("Form").size(), 6U);
    EXPECT_EQ(Saved("Form")[4].R - Saved("Form")[4].L, 1);
    EXPECT_EQ(Saved("Form")[4].Name, "Un-named-5");
}

TEST_F(KeyboardTest, TheMenuOfABoxOnThePageActsOnItAndChangesNothingByItself) {
    form_.SaveScan(folders_.ProcessIn + "scan.tif", {.checked = {2}});
    Open();
    ClickThumbnail(1);
    EXPECT_EQ(MenuAt(View(), OnPage(3)), (Names{"Rename", "NameBoxes", "DuplicateBoxes", "Delete"}));
    EXPECT_EQ(Rows().indexOfTopLevelItem(Rows().currentItem()), 2);
    EXPECT_EQ(MenuByKey(View()), (Names{"Rename", "NameBoxes", "DuplicateBoxes", "Delete"}));
    EXPECT_EQ(MenuAt(View(), {2, 2}), Names()) << "no box lies there";
    Click("Process");
    Click("Review");
    Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
    const auto mark = [this](int row) { return FromQt(Rows().topLevelItem(row)->text(1)); };
    ASSERT_EQ(mark(1), "1");
    EXPECT_EQ(MenuAt(View(), OnPage(2)), (Names{"FlipBox", "NextDoubt"}));
    EXPECT_EQ(MenuAt(Rows(), Rows().visualItemRect(Rows().topLevelItem(1)).center()),
              (Names{"FlipBox", "NextDoubt"}));
    EXPECT_EQ(mark(1), "1");
    Find<QAction>(*window_, "FlipBox").trigger();
    EXPECT_EQ(mark(1), "0");
    Find<QAction>(*window_, "Okay").trigger();
}

TEST_F(KeyboardTest, PagesThatWereNotReadHaveAMenuAndAKey) {
    for (const char* name : {"a.png", "b.png"})
        test::WriteText(folders_.ProcessIn + name, "no image");
    Open();
    Click("Process");
    Click("Review");
    Find<QTabWidget>(*window_, "tabReview").setCurrentIndex(1);
    auto& list = Find<QTreeWidget>(*window_, "lvwUnread");
    QApplication::processEvents();
    EXPECT_EQ(MenuAt(list, list.visualItemRect(list.topLevelItem(1)).center()),
              (Names{"BackToProcessIn", "AllBackToProcessIn", "ProcessUnread"}));
    Press(list, Qt::Key_B, Qt::ControlModifier);
    EXPECT_EQ(In(folders_.ProcessIn), Names{"b.png"});
}

TEST_F(KeyboardTest, EscapeClosesTheSummaryThenTheNameThatIsTypedThenTheWindow) {
    form_.SaveScan(folders_.ProcessIn + "scan.tif", {});
    Open();
    Click("Process");
    ClickThumbnail(1);
    Rows().setFocus();
    Rows().setCurrentIndex(Rows().model()->index(0, 0));
    QTest::keyClick(&Rows(), Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), "half a na");
    const auto escape = [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); };
    escape();
    EXPECT_FALSE(Find<QWidget>(*window_, "SummaryPanel").isVisible());
    EXPECT_FALSE(Rows().hasFocus()) << "the name is being typed still";
    escape();
    EXPECT_TRUE(Rows().hasFocus());
    EXPECT_EQ(RowTexts().front(), "Q1");
    EXPECT_TRUE(window_->isVisible());
    escape();
    EXPECT_FALSE(window_->isVisible());
}

}  // namespace
}  // namespace tavrene::ui
