#include "ui/page/HandleFrame.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>

#include "ui/page/CosmeticPen.h"

namespace tavrene::ui {
namespace {

// All in pixels of the screen.
constexpr double kSmallSide = 30;
constexpr double kStandOff = 5;
constexpr double kHandleSide = 7;
constexpr double kReach = 6;

const QColor kFrame(213, 94, 0);

}  // namespace

std::vector<Handle> HandlesOf(const QRectF& rect, double scale) {
    const bool isSmall = std::min(rect.width(), rect.height()) * scale < kSmallSide;
    const double off = isSmall ? kStandOff / scale : 0;
    const QRectF frame = rect.adjusted(-off, -off, off, off);
    std::vector<Handle> handles = {{kLeftEdge | kTopEdge, frame.topLeft()},
                                   {kRightEdge | kTopEdge, frame.topRight()},
                                   {kLeftEdge | kBottomEdge, frame.bottomLeft()},
                                   {kRightEdge | kBottomEdge, frame.bottomRight()}};
    if (isSmall)
        return handles;
    const QPointF centre = frame.center();
    handles.push_back({kLeftEdge, {frame.left(), centre.y()}});
    handles.push_back({kRightEdge, {frame.right(), centre.y()}});
    handles.push_back({kTopEdge, {centre.x(), frame.top()}});
    handles.push_back({kBottomEdge, {centre.x(), frame.bottom()}});
    return handles;
}

unsigned EdgesAt(const QRectF& rect, double scale, const QPointF& point) {
    for (const Handle& handle : HandlesOf(rect, scale)) {
        const QPointF away = (point - handle.centre) * scale;
        if (std::max(std::abs(away.x()), std::abs(away.y())) <= kReach)
            return handle.edges;
    }
    return kNoEdge;
}

QRectF WithEdgesAt(QRectF rect, unsigned edges, const QPointF& point) {
    if ((edges & kLeftEdge) != 0)
        rect.setLeft(std::min(point.x(), rect.right() - 1));
    if ((edges & kRightEdge) != 0)
        rect.setRight(std::max(point.x(), rect.left() + 1));
    if ((edges & kTopEdge) != 0)
        rect.setTop(std::min(point.y(), rect.bottom() - 1));
    if ((edges & kBottomEdge) != 0)
        rect.setBottom(std::max(point.y(), rect.top() + 1));
    return rect;
}

HandleFrame::HandleFrame() {
    setZValue(1);
    setVisible(false);
}

void HandleFrame::Clear() {
    prepareGeometryChange();
    rects_.clear();
    current_ = 0;
    room_ = {};
    setVisible(false);
}

void HandleFrame::SetRect(int group, const QRectF& rect) {
    // Handles keep their size on the screen, which is many image pixels on a page that is shown small.
    constexpr double kRoom = 400;
    const QRectF room = rect.adjusted(-kRoom, -kRoom, kRoom, kRoom);
    if (!room_.contains(room)) {
        prepareGeometryChange();
        room_ |= room;
    }
    rects_[group] = rect;
    setVisible(true);
    update();
}

void HandleFrame::SetCurrent(int group, const QRectF& rect) {
    SetRect(group, rect);
    current_ = group;
}

void HandleFrame::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const double dots = painter->device()->devicePixelRatio();
    QColor veil = kFrame;
    veil.setAlphaF(0.15F);
    QList<QRectF> others;
    for (const auto& [group, rect] : rects_) {
        painter->fillRect(rect, veil);
        if (group != current_)
            others.append(rect);
    }
    painter->setPen(CosmeticPen(QColor(255, 255, 255, 220), 4 * dots));
    painter->drawRects(others);
    painter->setPen(CosmeticPen(kFrame, 2 * dots));
    painter->drawRects(others);
    const auto current = rects_.find(current_);
    if (current == rects_.end())
        return;
    painter->setPen(CosmeticPen(QColor(255, 255, 255, 220), 4.5 * dots));
    painter->drawRect(current->second);
    painter->setPen(CosmeticPen(kFrame, (others.isEmpty() ? 2.5 : 4) * dots));
    painter->drawRect(current->second);
    if (others.isEmpty())
        PaintHandles(*painter, current->second, dots);
}

void HandleFrame::PaintHandles(QPainter& painter, const QRectF& rect, double dots) {
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter.worldTransform());
    painter.setPen(CosmeticPen(kFrame, 1.25 * dots));
    painter.setBrush(Qt::white);
    const double side = kHandleSide / scale;
    for (const Handle& handle : HandlesOf(rect, scale))
        painter.drawRect(QRectF(handle.centre.x() - side / 2, handle.centre.y() - side / 2, side, side));
}

}  // namespace tavrene::ui
