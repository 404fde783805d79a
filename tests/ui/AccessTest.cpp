#include <QAccessible>
#include <QTreeView>

#include "ui/DeskWindow.h"

namespace tavrene::ui {
namespace {

using test::Find;

class AccessTest : public test::DeskWindow {
  protected:
    AccessTest() { AddSpecimenProfile("Form", form_); }

    QAccessibleInterface& Page() { return *QAccessible::queryAccessibleInterface(&View()); }

    static std::string NameOf(QAccessibleInterface& thing) { return FromQt(thing.text(QAccessible::Name)); }

    test::TestForm form_ = test::TestForm::Grid(2, 2);
};

TEST_F(AccessTest, EveryBoxOfThePageTellsItsNamePlaceAndMark) {
    form_.SaveScan(folders_.ProcessIn + "scan.tif", {.checked = {2}});
    Open();
    ClickThumbnail(1);
    ClickRow(2);
    ASSERT_EQ(Page().childCount(), 4);
    QAccessibleInterface& third = *Page().child(2);
    EXPECT_EQ(NameOf(third), "Q3");
    EXPECT_EQ(third.role(), QAccessible::Graphic);
    EXPECT_TRUE(third.state().selected && third.state().movable && !third.state().checkable);
    EXPECT_FALSE(Page().child(1)->state().selected);
    View().setFocus();
    EXPECT_EQ(Page().focusChild(), &third);
    const QPoint middle = View().viewport()->mapToGlobal(
        View().viewportTransform().map(View().Boxes().PlaceOf(3).center()).toPoint());
    EXPECT_TRUE(third.rect().contains(middle));
    EXPECT_EQ(Page().childAt(middle.x(), middle.y()), &third);
    EXPECT_EQ(Page().indexOfChild(&third), 2);
    Press(View(), Qt::Key_Delete);
    EXPECT_FALSE(third.isValid());
    EXPECT_EQ(Page().childCount(), 3);
    Press(View(), Qt::Key_Z, Qt::ControlModifier);
    Click("Process");
    Click("Review");
    Press(Find<QTreeView>(*window_, "lvwReview"), Qt::Key_Return);
    ASSERT_EQ(Page().childCount(), 4);
    EXPECT_EQ(Page().child(1)->role(), QAccessible::CheckBox);
    EXPECT_TRUE(Page().child(1)->state().checked);
    EXPECT_FALSE(Page().child(2)->state().checked);
    EXPECT_TRUE(Page().child(2)->state().checkable);
    EXPECT_EQ(NameOf(*Page().child(1)), "Q2");
}

TEST_F(AccessTest, EveryControlHasANameAndARole) {
    Open();
    int controls = 0;
    for (QWidget* const widget : window_->findChildren<QWidget*>()) {
        // What Tab does not reach is part of something else.
        if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() != nullptr ||
            widget->isWindow() || widget->window() != window_.get() || widget->objectName().startsWith("qt_"))
            continue;
        QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(control, nullptr);
        EXPECT_FALSE(control->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << FromQt(widget->objectName());
        EXPECT_NE(control->role(), QAccessible::NoRole) << NameOf(*control);
        EXPECT_NE(control->role(), QAccessible::Client) << NameOf(*control);
        ++controls;
    }
    EXPECT_GT(controls, 25);
    ClickThumbnail(1);
    const QAccessibleInterface& message =
        *QAccessible::queryAccessibleInterface(&Find<QLabel>(*window_, "Message"));
    EXPECT_EQ(FromQt(message.text(QAccessible::Description)), Panel("Message"));
}

}  // namespace
}  // namespace tavrene::ui
