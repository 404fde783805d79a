#include "ui/RectItem.h"

#include <QPainter>
#include <QPen>

namespace tavrene::ui {
namespace {

constexpr double kLineWidth = 2.0;
constexpr double kSeamWidth = 4.0;

QPen CosmeticPen(const QColor& color, double width, Qt::PenStyle line) {
    QPen pen(color, width, line, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    return pen;
}

QPen PenOf(imaging::RectStyle style) {
    switch (style) {
        case imaging::RectStyle::Checked:
            return CosmeticPen(QColor(0, 114, 178), kLineWidth + 0.5, Qt::SolidLine);
        case imaging::RectStyle::Unchecked:
            return CosmeticPen(QColor(213, 94, 0), kLineWidth, Qt::DashLine);
        case imaging::RectStyle::Skipped:
            return CosmeticPen(QColor(110, 110, 110), kLineWidth, Qt::DotLine);
        case imaging::RectStyle::Plain:
            break;
    }
    return CosmeticPen(QColor(0, 114, 178), kLineWidth - 0.5, Qt::SolidLine);
}

}  // namespace

RectItem::RectItem(int group, const imaging::PageRect& rect, imaging::RectStyle style)
    : group_(group), rect_(rect.left, rect.top, rect.width, rect.height), style_(style) {}

QRectF RectItem::boundingRect() const {
    // The seam reaches beyond the rectangle by two pixels of the screen, which are many of the page when it
    // is small.
    constexpr double kReach = 40;
    return rect_.adjusted(-kReach, -kReach, kReach, kReach);
}

void RectItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    painter->setPen(CosmeticPen(QColor(255, 255, 255, 200), kSeamWidth, Qt::SolidLine));
    painter->drawRect(rect_);
    painter->setPen(PenOf(style_));
    painter->drawRect(rect_);
}

}  // namespace tavrene::ui
