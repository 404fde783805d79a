#include "ui/page/LabelRoom.h"

#include <algorithm>
#include <utility>

namespace tavrene::ui {

LabelRoom::LabelRoom(const QPainter& painter, PrintEnd print)
    : sight_(painter.viewport()), toScreen_(painter.worldTransform()), print_(std::move(print)) {}

bool LabelRoom::IsFree(const QRectF& place) const {
    return sight_.contains(place) && std::none_of(taken_.begin(), taken_.end(), [&](const QRectF& other) {
               return other.intersects(place);
           });
}

double LabelRoom::PrintedUpTo(const QRectF& place) const {
    if (!print_)
        return place.left();
    const QRectF onPage = toScreen_.inverted().mapRect(place);
    const double end = print_(onPage);
    return end <= onPage.left()
               ? place.left()
               : toScreen_.mapRect(QRectF(onPage.left(), onPage.top(), end - onPage.left(), 1)).right();
}

}  // namespace tavrene::ui
