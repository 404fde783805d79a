#include "ui/settings/BoxPreview.h"

#include <QPainter>

#include "ui/commands/BoxSizeBars.h"

namespace tavrene::ui {

BoxPreview::BoxPreview(const QString& name) {
    setObjectName(name);
    setFrameShape(QFrame::StyledPanel);
    setFixedSize(kSide, kSide);
}

void BoxPreview::ShowSize(int boxWidth, int boxHeight) {
    boxWidth_ = boxWidth;
    boxHeight_ = boxHeight;
    update();
}

void BoxPreview::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setPen(QPen(palette().color(QPalette::Text), 1));
    const commands::PreviewBox box = commands::BoxInPreview(width(), height(), boxWidth_, boxHeight_);
    painter.drawRect(QRectF(QPointF(box.left, box.top), QPointF(box.right, box.bottom)));
    painter.end();
    QFrame::paintEvent(event);
}

}  // namespace tavrene::ui
