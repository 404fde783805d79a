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
constexpr double kMostStandOff = 4;
constexpr double kLeastStandOff = 2;
constexpr double kTextOff = 3;
constexpr double kPrintOff = 8;

// Print beside a frame is stepped over so far, and text is not made shorter than that.
constexpr double kMostPrint = 300;
constexpr double kLeastText = 50;

// Boxes that are shown small stand close together, and so do their frames.
constexpr double kStandOff = 0.2;

const QColor kFrame(0, 120, 90);
const QColor kPaper(255, 255, 255, 225);

// The rest of the line at the right of a frame, up to the next frame on it.
QRectF RestOfLine(const QRectF& frame, double height, const std::vector<QRectF>& frames, double end) {
    for (const QRectF& other : frames)
        if (other.left() > frame.right() && other.top() < frame.bottom() && other.bottom() > frame.top())
            end = std::min(end, other.left() - kTextOff);
    const double left = frame.right() + kTextOff;
    return {left, frame.center().y() - height / 2, std::max(0.0, end - left), height};
}

// The first part of the line that is blank and as long as that; a null rectangle where there is none near.
QRectF BlankPart(const QRectF& line, double length, const LabelRoom& room) {
    QRectF part(line.left(), line.top(), length, line.height());
    while (part.right() <= line.right() && part.left() <= line.left() + kMostPrint) {
        const double printed = room.PrintedUpTo(part);
        if (printed <= part.left())
            return room.IsFree(part) ? part : QRectF();
        part.moveLeft(printed + kPrintOff);
    }
    return {};
}

// Where text of that size goes, which may have to be made shorter or, in the end, to cover print. Null where
// there is no room.
QRectF TextPlace(const QRectF& frame, const QSizeF& size, const std::vector<QRectF>& frames,
                 const LabelRoom& room) {
    const QRectF line = RestOfLine(frame, size.height(), frames, room.Sight().right());
    if (const QRectF beside = BlankPart(line, size.width(), room); !beside.isNull())
        return beside;
    const double left = std::max(frame.left(), room.Sight().left());
    const QRectF overAndUnder[] = {{{left, frame.top() - size.height() - 1}, size},
                                   {{left, frame.bottom() + 1}, size}};
    for (const QRectF& place : overAndUnder)
        if (room.IsBlank(place))
            return place;
    for (const double part : {0.75, 0.5})
        if (const QRectF beside = BlankPart(line, std::max(part * size.width(), kLeastText), room);
            !beside.isNull())
            return beside;
    const QRectF covering(line.topLeft(), QSizeF(std::min(line.width(), size.width()), size.height()));
    if (covering.width() >= kLeastText && room.IsFree(covering))
        return covering;
    const auto* const free =
        std::ranges::find_if(overAndUnder, [&](const auto& place) { return room.IsFree(place); });
    return free == std::end(overAndUnder) ? QRectF() : *free;
}

}  // namespace

GroupFrames::GroupFrames(PrintEnd print) : print_(std::move(print)) {
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
    LabelRoom room(*painter, print_);
    painter->save();
    painter->resetTransform();
    QFont font = QApplication::font();
    font.setPixelSize(11);
    painter->setFont(font);
    // Pens that keep their width count in dots of the device, of which a fine screen has several a pixel.
    painter->setPen(CosmeticPen(kFrame, 1.5 * painter->device()->devicePixelRatio(), Qt::DashLine));
    const QFontMetricsF metrics(font);
    std::vector<QRectF> places;
    for (const GroupFrame& frame : frames_) {
        const QRectF boxes = toScreen.mapRect(frame.place);
        const double off =
            std::clamp(kStandOff * std::min(boxes.width(), boxes.height()), kLeastStandOff, kMostStandOff);
        places.push_back(boxes.adjusted(-off, -off, off, off));
        painter->drawRect(places.back());
        room.Take(places.back());
    }
    for (std::size_t k = 0; k < frames_.size(); ++k) {
        if (!room.Sight().intersects(places[k]))
            continue;
        const QString& said = frames_[k].text;
        const QRectF place = TextPlace(
            places[k], {std::ceil(metrics.horizontalAdvance(said)), metrics.height()}, places, room);
        if (place.isNull())
            continue;
        const QString text = metrics.elidedText(said, Qt::ElideRight, place.width());
        room.Take(place);
        painter->fillRect(place, kPaper);
        painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter, text);
    }
    painter->restore();
}

}  // namespace tavrene::ui
