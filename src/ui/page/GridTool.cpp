#include "ui/page/GridTool.h"

#include <utility>

#include "ui/page/BoxLayer.h"

namespace tavrene::ui {

void GridTool::Start(std::function<void(const QRectF&, const QRectF&)> done) {
    done_ = std::move(done);
    isActive_ = true;
}

// A click means a box as large as the first one.
QRectF GridTool::Box(const QPointF& point) const {
    const QRectF drawn = Drawn(point);
    if (!IsClick(drawn))
        return drawn;
    QRectF clicked = first_;
    clicked.moveCenter(layer_.Snapped(point));
    return first_.isNull() ? QRectF() : clicked;
}

QRectF GridTool::Shown(const QPointF& point) const {
    return first_.isNull() ? Box(point) : first_.united(Box(point));
}

void GridTool::Finish(const QPointF& point) {
    const QRectF box = Box(point);
    if (!box.isEmpty() && !first_.isNull()) {
        const QRectF first = first_;
        Cancel();
        done_(first, box);
        return;
    }
    if (!box.isEmpty())
        first_ = box;
    layer_.ShowDrawn(first_);
}

// The tool of before comes back, which gives this one up once more.
bool GridTool::Cancel() {
    RectTool::Cancel();
    first_ = {};
    if (!std::exchange(isActive_, false))
        return false;
    layer_.EndGrid();
    return true;
}

}  // namespace tavrene::ui
