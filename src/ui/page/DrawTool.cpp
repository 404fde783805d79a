#include "ui/page/DrawTool.h"

#include <algorithm>
#include <utility>

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {
void DrawTool::Press(const QPointF& point, Qt::KeyboardModifiers) {
    from_ = point;
    isDrawing_ = true;
}

QRectF DrawTool::Drawn(const QPointF& point) const {
    return QRectF(layer_.Snapped(from_), layer_.Snapped(point)).normalized();
}

void DrawTool::Drag(const QPointF& point, Qt::KeyboardModifiers) {
    if (isDrawing_)
        layer_.ShowDrawn(Drawn(point));
}

void DrawTool::Release(const QPointF& point, Qt::KeyboardModifiers) {
    if (!std::exchange(isDrawing_, false))
        return;
    layer_.ShowDrawn({});
    const QRectF drawn = Drawn(point);
    const bool isClick = std::max(drawn.width(), drawn.height()) * layer_.Scale() <= kTremble;
    // A line has no inside that could be marked, so it is no box.
    if (!isClick && !drawn.isEmpty())
        layer_.TellSelected(layer_.NextGroup(), drawn);
    else if (const int group = layer_.BoxAt(point); isClick && group != 0)
        layer_.TellSelected(group, layer_.PlaceOf(group));
}

bool DrawTool::Cancel() {
    layer_.ShowDrawn({});
    return std::exchange(isDrawing_, false);
}

QCursor DrawTool::CursorAt(const QPointF&) const {
    return Qt::CrossCursor;
}

}  // namespace tavrene::ui
