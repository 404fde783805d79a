#include "ui/base/EmptyHint.h"

#include <QPainter>

namespace tavrene::ui {

void PaintEmptyHint(QWidget& viewport, const QString& text) {
    QPainter painter(&viewport);
    QColor color = viewport.palette().color(QPalette::WindowText);
    color.setAlphaF(0.7F);
    painter.setPen(color);
    painter.drawText(viewport.rect().adjusted(12, 12, -12, -12),
                     static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextWordWrap), text);
}

}  // namespace tavrene::ui
