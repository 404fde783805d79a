#include "ui/FormWindow.h"

namespace tavrene::ui {
namespace {

using HandlesTest = test::FormWindow;

// Of a box that is shown large: a handle at each corner and at the middle of each side.
TEST_F(HandlesTest, EachMovesItsEdgesAndNoOther) {
    AddSpecimenProfile("Form", form_);
    OpenForm();
    View().SetZoom(250);
    const QRectF box = PlaceOf(form_.boxes[0]);
    const QPointF by(-4, 3);
    const std::tuple<QPointF, QMarginsF, Qt::CursorShape> handles[] = {
        {box.topLeft(), {4, -3, 0, 0}, Qt::SizeFDiagCursor},
        {box.topRight(), {0, -3, -4, 0}, Qt::SizeBDiagCursor},
        {box.bottomLeft(), {4, 0, 0, 3}, Qt::SizeBDiagCursor},
        {box.bottomRight(), {0, 0, -4, 3}, Qt::SizeFDiagCursor},
        {{box.left(), box.center().y()}, {4, 0, 0, 0}, Qt::SizeHorCursor},
        {{box.right(), box.center().y()}, {0, 0, -4, 0}, Qt::SizeHorCursor},
        {{box.center().x(), box.top()}, {0, -3, 0, 0}, Qt::SizeVerCursor},
        {{box.center().x(), box.bottom()}, {0, 0, 0, 3}, Qt::SizeVerCursor}};
    for (const auto& [handle, margins, cursor] : handles) {
        ClickRow(0);
        Mouse(QEvent::MouseMove, handle, Qt::NoButton);
        EXPECT_EQ(View().viewport()->cursor().shape(), cursor);
        Drag(handle, handle + by);
        EXPECT_EQ(View().Boxes().PlaceOf(1), box.marginsAdded(margins)) << cursor;
        Press(View(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(View().Boxes().PlaceOf(1), box);
    }
    QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().mapFromScene(box.center()));
    EXPECT_TRUE(View().hasFocus()) << "the keys go where the person has clicked";
    Press(View(), Qt::Key_Left);
    Press(View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(View().Boxes().PlaceOf(1), box.translated(-1, 10));
    Press(View(), Qt::Key_Z, Qt::ControlModifier);
    Press(View(), Qt::Key_Z, Qt::ControlModifier);
    Drag(box.bottomRight(), box.topLeft() - QPointF(30, 30));
    EXPECT_EQ(View().Boxes().PlaceOf(1), QRectF(box.topLeft(), QSizeF(1, 1))) << "a side stops at the other";
}

}  // namespace
}  // namespace tavrene::ui
