#include "ui/page/GridTool.h"

#include <algorithm>
#include <utility>

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {

void GridTool::Start(std::function<void(const QRectF&, const QRectF&)> done) {
    done_ = std::move(done);
    isActive_ = true;
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
        const QRectF first = first_;
        Cancel();
        done_(first, drawn);
    }
}

// The tool of before comes back, which gives this one up once more.
bool GridTool::Cancel() {
    if (!std::exchange(isActive_, false))
        return false;
    isDrawing_ = false;
    first_ = {};
    layer_.ShowDrawn({});
    layer_.EndGrid();
    return true;
}

QCursor GridTool::CursorAt(const QPointF&) const {
    return Qt::CrossCursor;
}

}  // namespace tavrene::ui
