#include "ui/page/PageItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <utility>

#include "ui/page/PageAverage.h"

namespace tavrene::ui {

void PageItem::SetImage(QImage image) {
    prepareGeometryChange();
    image_ = std::move(image);
    pixmap_ = {};
    pixmapScale_ = 0;
    update();
}

bool PageItem::IsDark(int x, int y) const {
    constexpr int kHalf = 128;
    return image_.format() == QImage::Format_Mono ? ((image_.constScanLine(y)[x / 8] >> (7 - x % 8)) & 1) != 0
                                                  : qGray(image_.pixel(x, y)) < kHalf;
}

double PageItem::PrintedUpTo(const QRectF& part) const {
    const QRect place = part.toAlignedRect() & image_.rect();
    const bool isMono = image_.format() == QImage::Format_Mono;
    int end = place.left();
    for (int y = place.top(); y <= place.bottom(); ++y) {
        int x = place.right();
        while (x >= end && !IsDark(x, y))
            x -= isMono && x % 8 == 7 && image_.constScanLine(y)[x / 8] == 0 ? 8 : 1;
        end = std::max(end, x + 1);
    }
    return !place.isEmpty() && end > place.left() ? end : part.left();
}

QRectF PageItem::boundingRect() const {
    return {QPointF(0, 0), Size()};
}

void PageItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) {
    if (image_.isNull())
        return;
    const double zoom = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const double scale = std::min(1.0, zoom * painter->device()->devicePixelRatio());
    if (scale == 1)
        PaintPart(*painter, option->exposedRect);
    else
        PaintSmaller(*painter, scale);
}

// A pixmap of the whole page would take longer to make than all the rest of showing it.
void PageItem::PaintPart(QPainter& painter, const QRectF& exposed) const {
    const QRect part = exposed.toAlignedRect() & image_.rect();
    painter.drawImage(part, image_, part);
}

void PageItem::PaintSmaller(QPainter& painter, double scale) {
    if (scale != pixmapScale_) {
        const QSize size = (Size() * scale).toSize().expandedTo({1, 1});
        pixmap_ =
            QPixmap::fromImage(image_.format() == QImage::Format_Mono
                                   ? Averaged(image_, size)
                                   : image_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        pixmapScale_ = scale;
    }
    painter.drawPixmap(boundingRect(), pixmap_, pixmap_.rect());
}

}  // namespace tavrene::ui
