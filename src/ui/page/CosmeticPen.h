#pragma once

#include <QPen>

namespace tavrene::ui {

/// A pen whose line stays `width` dots of the screen wide at every zoom, with sharp corners.
inline QPen CosmeticPen(const QColor& color, double width, Qt::PenStyle style = Qt::SolidLine) {
    QPen pen(color, width, style, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    return pen;
}

}  // namespace tavrene::ui
