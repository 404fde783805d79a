#include "ui/page/SelectTool.h"

#include <cmath>
#include <utility>

#include "ui/page/BoxLayer.h"
#include "ui/page/HandleFrame.h"

namespace tavrene::ui {
// Handles stand out of their box, on dense forms over its neighbours, and give way to them.
unsigned SelectTool::EdgesUnder(const QPointF& point) const {
    const int group = layer_.SelectedBox();
    const QRectF selected = layer_.PlaceOf(group);
    if (selected.isNull() || !layer_.IsEditable(group))
        return kNoEdge;
    const bool isOverNeighbour = !selected.contains(point) && layer_.HasBoxUnder(point);
    return isOverNeighbour ? kNoEdge : EdgesAt(selected, layer_.Scale(), point);
}

void SelectTool::Press(const QPointF& point) {
    edges_ = EdgesUnder(point);
    const int group = edges_ != kNoEdge ? layer_.SelectedBox() : layer_.BoxAt(point);
    if (group == 0)
        return;
    // What is told may fill the page anew.
    const bool canMove = layer_.IsEditable(group);
    if (edges_ == kNoEdge)
        layer_.TellSelected(group, layer_.PlaceOf(group));
    if (!canMove)
        return;
    dragged_ = group;
    hasMoved_ = false;
    from_ = point;
    before_ = layer_.PlaceOf(group);
}

QRectF SelectTool::Moved(const QPointF& point) const {
    if (edges_ != kNoEdge)
        return WithEdgesAt(before_, edges_, layer_.Snapped(point, before_));
    return layer_.Moved(before_, point - from_);
}

void SelectTool::Drag(const QPointF& point) {
    if (dragged_ == 0)
        return;
    const QPointF by = (point - from_) * layer_.Scale();
    hasMoved_ = hasMoved_ || std::hypot(by.x(), by.y()) > kTremble;
    if (hasMoved_)
        layer_.ShowAt(dragged_, Moved(point));
}

void SelectTool::Release(const QPointF& point) {
    Drag(point);
    const int group = std::exchange(dragged_, 0);
    const QRectF place = layer_.PlaceOf(group);
    if (group == 0 || place == before_)
        return;
    layer_.TellMoved(group);
    layer_.TellSelected(group, place);
}

bool SelectTool::Cancel() {
    const int group = std::exchange(dragged_, 0);
    if (group == 0)
        return false;
    layer_.ShowAt(group, before_);
    return true;
}

QCursor SelectTool::CursorOver(int group) const {
    if (group == 0)
        return Qt::ArrowCursor;
    return layer_.IsEditable(group) ? Qt::SizeAllCursor : Qt::PointingHandCursor;
}

QCursor SelectTool::CursorAt(const QPointF& point) const {
    switch (EdgesUnder(point)) {
        case kNoEdge:
            return CursorOver(layer_.BoxAt(point));
        case kLeftEdge:
        case kRightEdge:
            return Qt::SizeHorCursor;
        case kTopEdge:
        case kBottomEdge:
            return Qt::SizeVerCursor;
        case kLeftEdge | kTopEdge:
        case kRightEdge | kBottomEdge:
            return Qt::SizeFDiagCursor;
        default:
            return Qt::SizeBDiagCursor;
    }
}

}  // namespace tavrene::ui
