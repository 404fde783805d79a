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

void HandleFrame::SetRect(const QRectF& rect) {
    prepareGeometryChange();
    rect_ = rect;
    setVisible(!rect.isNull());
}

QRectF HandleFrame::boundingRect() const {
    // Handles keep their size on the screen, which is many image pixels on a page that is shown small.
    constexpr double kRoom = 400;
    return rect_.isNull() ? rect_ : rect_.adjusted(-kRoom, -kRoom, kRoom, kRoom);
}

void HandleFrame::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const QTransform toDevice = painter->worldTransform();
    const double dots = painter->device()->devicePixelRatio();
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(toDevice);
    QColor veil = kFrame;
    veil.setAlphaF(0.15F);
    painter->fillRect(rect_, veil);
    painter->setPen(CosmeticPen(QColor(255, 255, 255, 220), 4.5 * dots));
    painter->drawRect(rect_);
    painter->setPen(CosmeticPen(kFrame, 2.5 * dots));
    painter->drawRect(rect_);
    painter->setPen(CosmeticPen(kFrame, 1.25 * dots));
    painter->setBrush(Qt::white);
    const double side = kHandleSide / scale;
    for (const Handle& handle : HandlesOf(rect_, scale))
        painter->drawRect(QRectF(handle.centre.x() - side / 2, handle.centre.y() - side / 2, side, side));
}

}  // namespace tavrene::ui
