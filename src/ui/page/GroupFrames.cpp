#include "ui/page/GroupFrames.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/page/CosmeticPen.h"

namespace tavrene::ui {
namespace {

// Pixels of the screen.
constexpr double kMostStandOff = 7;
constexpr double kLeastStandOff = 2;

constexpr double kTextOff = 3;

// Pixels of the page.
constexpr double kEnoughRoom = 4000;

// Boxes that are shown small stand close together, and so do their frames.
constexpr double kStandOff = 0.2;

const QColor kFrame(0, 120, 90);
const QColor kPaper(255, 255, 255, 225);

// The room at the right of a frame, up to the next one on its line.
double RoomBeside(const QRectF& frame, const std::vector<GroupFrame>& frames) {
    double room = kEnoughRoom;
    for (const GroupFrame& other : frames)
        if (other.place.left() > frame.right() && other.place.top() < frame.bottom() &&
            other.place.bottom() > frame.top())
            room = std::min(room, other.place.left() - frame.right());
    return room;
}

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
    painter->save();
    painter->resetTransform();
    QFont font = QApplication::font();
    font.setPixelSize(11);
    painter->setFont(font);
    // Pens that keep their width count in dots of the device, of which a fine screen has several a pixel.
    painter->setPen(CosmeticPen(kFrame, 1.5 * painter->device()->devicePixelRatio(), Qt::DashLine));
    const QFontMetricsF metrics(font);
    for (const GroupFrame& frame : frames_) {
        const QRectF boxes = toScreen.mapRect(frame.place);
        const double off =
            std::clamp(kStandOff * std::min(boxes.width(), boxes.height()), kLeastStandOff, kMostStandOff);
        const QRectF place = boxes.adjusted(-off, -off, off, off);
        painter->drawRect(place);
        const double room =
            RoomBeside(frame.place, frames_) * std::abs(toScreen.m11()) - 2 * (off + kTextOff);
        const QString text = metrics.elidedText(frame.text, Qt::ElideRight, room);
        const QRectF line(place.right() + kTextOff, place.center().y() - metrics.height() / 2,
                          metrics.horizontalAdvance(text), metrics.height());
        painter->fillRect(line, kPaper);
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, text);
    }
    painter->restore();
}

}  // namespace tavrene::ui
