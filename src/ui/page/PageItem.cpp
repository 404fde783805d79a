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
