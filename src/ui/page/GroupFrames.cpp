#include "ui/page/GroupFrames.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "ui/page/CosmeticPen.h"

namespace tavrene::ui {
namespace {

// Pixels of the screen.
constexpr double kMostStandOff = 7;
constexpr double kLeastStandOff = 2;

// Boxes that are shown small stand close together, and so do their frames.
constexpr double kStandOff = 0.2;

const QColor kFrame(0, 120, 90);

}  // namespace

GroupFrames::GroupFrames() {
    setZValue(0.5);
    setVisible(false);
}

void GroupFrames::SetFrames(std::vector<GroupFrame> frames) {
    prepareGeometryChange();
    frames_ = std::move(frames);
    // Letters keep their size on the screen, which is many image pixels on a page that is shown small.
    constexpr double kRoom = 2000;
    room_ = {};
    for (const GroupFrame& frame : frames_)
        room_ |= frame.place.adjusted(-kRoom, -kRoom, kRoom, kRoom);
    setVisible(!frames_.empty());
    update();
}

void GroupFrames::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const QTransform toScreen = painter->worldTransform();
    const double dots = painter->device()->devicePixelRatio();
    painter->save();
    painter->resetTransform();
    QFont font = QApplication::font();
    font.setPixelSize(qRound(11 * dots));
    painter->setFont(font);
    painter->setPen(CosmeticPen(kFrame, 1.5 * dots, Qt::DashLine));
    const double height = QFontMetricsF(font).height();
    for (const GroupFrame& frame : frames_) {
        const QRectF boxes = toScreen.mapRect(frame.place);
        const double off =
            std::clamp(kStandOff * std::min(boxes.width(), boxes.height()), kLeastStandOff, kMostStandOff) *
            dots;
        const QRectF place = boxes.adjusted(-off, -off, off, off);
        painter->drawRect(place);
        const QRectF line(place.right() + 3 * dots, place.center().y() - height / 2, 400 * dots, height);
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, frame.text);
    }
    painter->restore();
}

}  // namespace tavrene::ui
