#include "ui/page/GridTool.h"

#include <algorithm>
#include <utility>

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {

void GridTool::Start(std::function<void(const QRectF&, const QRectF&)> done) {
    done_ = std::move(done);
    first_ = {};
    isDrawing_ = false;
}

// A click means a box as large as the first one.
QRectF GridTool::Drawn(const QPointF& point) const {
    const QRectF drawn = QRectF(layer_.Snapped(from_), layer_.Snapped(point)).normalized();
    if (std::max(drawn.width(), drawn.height()) * layer_.Scale() > kTremble)
        return drawn;
    QRectF clicked = first_;
    clicked.moveCenter(layer_.Snapped(point));
    return first_.isNull() ? QRectF() : clicked;
}

void GridTool::Press(const QPointF& point, Qt::KeyboardModifiers) {
    from_ = point;
    isDrawing_ = true;
}

void GridTool::Drag(const QPointF& point, Qt::KeyboardModifiers) {
    if (isDrawing_)
        layer_.ShowDrawn(first_.isNull() ? Drawn(point) : first_.united(Drawn(point)));
}

void GridTool::Release(const QPointF& point, Qt::KeyboardModifiers) {
    if (!std::exchange(isDrawing_, false))
        return;
    const QRectF drawn = Drawn(point);
    if (drawn.isEmpty()) {
        layer_.ShowDrawn(first_);
    } else if (first_.isNull()) {
        first_ = drawn;
        layer_.ShowDrawn(first_);
    } else {
        const QRectF first = std::exchange(first_, {});
        layer_.ShowDrawn({});
        done_(first, drawn);
    }
}

bool GridTool::Cancel() {
    layer_.ShowDrawn({});
    const bool wasDrawing = std::exchange(isDrawing_, false) || !first_.isNull();
    first_ = {};
    return wasDrawing;
}

QCursor GridTool::CursorAt(const QPointF&) const {
    return Qt::CrossCursor;
}

}  // namespace tavrene::ui
