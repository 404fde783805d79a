#include "ui/page/BoxLabels.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <utility>

namespace tavrene::ui {
namespace {

// Pixels of the screen.
constexpr double kLongest = 150;
constexpr double kPadding = 2;
constexpr double kGap = 2;

const QColor kInk(0, 70, 120);
const QColor kBadInk(180, 0, 0);
const QColor kPaper(255, 255, 255, 225);

// The first place beside the box where there is room: above it, below it, at its right or its left, and over
// no print if that can be. A null rectangle where there is none.
QRectF LabelPlace(const QRectF& box, const QSizeF& size, const LabelRoom& room) {
    const double level = box.center().y() - size.height() / 2;
    const QPointF places[] = {{box.left(), box.top() - size.height() - kGap},
                              {box.left(), box.bottom() + kGap},
                              {box.right() + kGap, level},
                              {box.left() - size.width() - kGap, level}};
    QRectF free;
    for (const QPointF& place : places) {
        const QRectF label(place, size);
        if (!room.IsFree(label))
            continue;
        if (room.PrintedUpTo(label) <= label.left())
            return label;
        if (free.isNull())
            free = label;
    }
    return free;
}

}  // namespace

BoxLabels::BoxLabels(PrintEnd print) : print_(std::move(print)) {
    setZValue(1.5);
    setVisible(false);
}

void BoxLabels::SetLabels(std::map<int, BoxLabel> labels) {
    labels_ = std::move(labels);
    setVisible(!labels_.empty());
    update();
}

QString BoxLabels::TextOf(int group) const {
    const auto label = labels_.find(group);
    return label == labels_.end() ? QString() : label->second.text;
}

void BoxLabels::SetPlaces(std::map<int, QRectF> places) {
    prepareGeometryChange();
    places_ = std::move(places);
    // Letters keep their size on the screen, which is many image pixels on a page that is shown small.
    constexpr double kRoom = 2000;
    room_ = {};
    for (const auto& [group, place] : places_)
        room_ |= place.adjusted(-kRoom, -kRoom, kRoom, kRoom);
    update();
}

void BoxLabels::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const QTransform toScreen = painter->worldTransform();
    LabelRoom room(*painter, print_);
    painter->save();
    painter->resetTransform();
    QFont font = QApplication::font();
    font.setPixelSize(12);
    painter->setFont(font);
    const QFontMetricsF metrics(font);
    // What is out of sight takes no room.
    for (const auto& [group, place] : places_)
        if (const QRectF box = toScreen.mapRect(place); room.Sight().intersects(box))
            room.Take(box);
    for (const auto& [group, label] : labels_) {
        const auto place = places_.find(group);
        if (place == places_.end() || label.text.isEmpty())
            continue;
        const QRectF box = toScreen.mapRect(place->second);
        const QString text = metrics.elidedText(label.text, Qt::ElideMiddle, kLongest);
        const QSizeF size(metrics.horizontalAdvance(text) + 2 * kPadding, metrics.height());
        const QRectF at = room.Sight().intersects(box) ? LabelPlace(box, size, room) : QRectF();
        if (at.isNull())
            continue;
        room.Take(at);
        painter->fillRect(at, kPaper);
        painter->setPen(label.isBad ? kBadInk : kInk);
        painter->drawText(at, Qt::AlignCenter, text);
    }
    painter->restore();
}

}  // namespace tavrene::ui
