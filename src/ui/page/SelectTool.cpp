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
    if (selected.isNull() || layer_.HasSeveral() || !layer_.IsEditable(group))
        return kNoEdge;
    const bool isOverNeighbour = !selected.contains(point) && layer_.HasBoxUnder(point);
    return isOverNeighbour ? kNoEdge : EdgesAt(selected, layer_.Scale(), point);
}

void SelectTool::Press(const QPointF& point, Qt::KeyboardModifiers keys) {
    from_ = point;
    way_ = {};
    hasMoved_ = false;
    edges_ = EdgesUnder(point);
    pressed_ = edges_ != kNoEdge ? layer_.SelectedBox() : layer_.BoxAt(point);
    if (pressed_ == 0)
        deed_ = Deed::Frame;
    else if (edges_ != kNoEdge)
        deed_ = Deed::Resize;
    else
        PressBox(pressed_, keys);
    const bool areSeveral = layer_.HasSeveral() && layer_.IsMarked(pressed_);
    before_ = areSeveral ? layer_.PlaceOfMarked() : layer_.PlaceOf(pressed_);
}

// A box among several that are marked stays so until it is known whether they are dragged.
void SelectTool::PressBox(int group, Qt::KeyboardModifiers keys) {
    // What is told may fill the page anew.
    const bool canMove = layer_.IsEditable(group);
    if (canMove && (keys & (Qt::ControlModifier | Qt::ShiftModifier)) != 0) {
        deed_ = keys.testFlag(Qt::ControlModifier) ? Deed::Copy : Deed::Click;
        return;
    }
    if (canMove && layer_.HasSeveral() && layer_.IsMarked(group)) {
        deed_ = Deed::MoveTogether;
        return;
    }
    deed_ = canMove ? Deed::Move : Deed::None;
    layer_.TellSelected(group, layer_.PlaceOf(group));
}

QRectF SelectTool::Moved(const QPointF& point) const {
    if (deed_ == Deed::Resize)
        return WithEdgesAt(before_, edges_, layer_.Snapped(point, before_));
    return before_.translated(layer_.Way(before_, point - from_));
}

void SelectTool::MoveTogetherTo(const QPointF& point) {
    const QPointF way = layer_.Way(before_, point - from_);
    layer_.ShowMarkedAt(way - way_);
    way_ = way;
}

void SelectTool::Drag(const QPointF& point, Qt::KeyboardModifiers) {
    const QPointF by = (point - from_) * layer_.Scale();
    hasMoved_ = hasMoved_ || std::hypot(by.x(), by.y()) > kTremble;
    if (!hasMoved_)
        return;
    if (deed_ == Deed::Frame)
        layer_.ShowDrawn(QRectF(from_, point).normalized());
    else if (deed_ == Deed::Copy)
        layer_.ShowDrawn(before_.translated(layer_.Way(before_, point - from_)));
    else if (deed_ == Deed::MoveTogether)
        MoveTogetherTo(point);
    else if (deed_ == Deed::Move || deed_ == Deed::Resize)
        layer_.ShowAt(pressed_, Moved(point));
}

void SelectTool::Release(const QPointF& point, Qt::KeyboardModifiers keys) {
    Drag(point, keys);
    const Deed deed = std::exchange(deed_, Deed::None);
    if (deed == Deed::Frame || deed == Deed::Copy)
        layer_.ShowDrawn({});
    if (hasMoved_)
        Finish(deed, point, keys);
    else if (deed == Deed::Copy || deed == Deed::Click)
        layer_.TellPicked(pressed_, deed == Deed::Copy ? profiles::Pick::Toggle : profiles::Pick::Span);
    else if (deed == Deed::MoveTogether)
        layer_.TellSelected(pressed_, layer_.PlaceOf(pressed_));
}

void SelectTool::Finish(Deed deed, const QPointF& point, Qt::KeyboardModifiers keys) {
    const QRectF place = layer_.PlaceOf(pressed_);
    if (deed == Deed::Frame) {
        layer_.TellFramed(QRectF(from_, point).normalized(),
                          (keys & (Qt::ControlModifier | Qt::ShiftModifier)) != 0);
    } else if (deed == Deed::Copy) {
        if (!layer_.IsMarked(pressed_))
            layer_.TellSelected(pressed_, place);
        layer_.TellMovedTogether(layer_.Way(before_, point - from_), true);
    } else if (deed == Deed::MoveTogether && !way_.isNull()) {
        // Where they go, who hears of it says; it may be where they were.
        layer_.ShowMarkedAt(-way_);
        layer_.TellMovedTogether(way_, false);
    } else if ((deed == Deed::Move || deed == Deed::Resize) && place != before_) {
        layer_.TellMoved(pressed_);
        layer_.TellSelected(pressed_, place);
    }
}

bool SelectTool::Cancel() {
    const Deed deed = std::exchange(deed_, Deed::None);
    layer_.ShowDrawn({});
    if (deed == Deed::MoveTogether)
        layer_.ShowMarkedAt(-way_);
    else if (deed == Deed::Move || deed == Deed::Resize)
        layer_.ShowAt(pressed_, before_);
    return deed != Deed::None;
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
