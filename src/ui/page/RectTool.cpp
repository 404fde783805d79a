#include "ui/page/RectTool.h"

#include <algorithm>
#include <utility>

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {

void RectTool::Press(const QPointF& point, Qt::KeyboardModifiers) {
    from_ = point;
    isDrawing_ = true;
}

void RectTool::Drag(const QPointF& point, Qt::KeyboardModifiers) {
    if (isDrawing_)
        layer_.ShowDrawn(Shown(point));
}

void RectTool::Release(const QPointF& point, Qt::KeyboardModifiers) {
    if (!std::exchange(isDrawing_, false))
        return;
    layer_.ShowDrawn({});
    Finish(point);
}

bool RectTool::Cancel() {
    layer_.ShowDrawn({});
    return std::exchange(isDrawing_, false);
}

QCursor RectTool::CursorAt(const QPointF&) const {
    return Qt::CrossCursor;
}

QRectF RectTool::Drawn(const QPointF& point) const {
    return QRectF(layer_.Snapped(from_), layer_.Snapped(point)).normalized();
}

bool RectTool::IsClick(const QRectF& drawn) const {
    return std::max(drawn.width(), drawn.height()) * layer_.Scale() <= kTremble;
}

}  // namespace tavrene::ui
