#include "ui/PageItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <utility>

namespace tavrene::ui {

void PageItem::SetImage(QImage image) {
    prepareGeometryChange();
    image_ = std::move(image);
    pixmap_ = {};
    pixmapScale_ = 0;
    update();
}

QRectF PageItem::boundingRect() const {
    return {QPointF(0, 0), Size()};
}

const QPixmap& PageItem::PixmapFor(double scale) {
    if (scale != pixmapScale_) {
        const QSize size = (Size() * scale).toSize().expandedTo({1, 1});
        const bool whole = scale == 1;
        pixmap_ = QPixmap::fromImage(
            whole ? image_ : image_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        pixmapScale_ = scale;
    }
    return pixmap_;
}

void PageItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    if (image_.isNull())
        return;
    const double zoom = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const double scale = std::min(1.0, zoom * painter->device()->devicePixelRatio());
    const QPixmap& pixmap = PixmapFor(scale);
    painter->drawPixmap(boundingRect(), pixmap, pixmap.rect());
}

}  // namespace tavrene::ui
