#include "ui/page/RectItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>

#include "ui/base/MarkColors.h"
#include "ui/page/CosmeticPen.h"

namespace tavrene::ui {
namespace {

constexpr double kSeam = 1.0;

// Boxes that are smaller than this on the screen get thinner lines, all of them outside, for a line would
// cover the mark in them.
constexpr double kSmallSide = 16;
constexpr double kThinLine = 0.7;

// How far the frame of an emphasised box stands off, in pixels of the screen.
constexpr double kEmphasisGap = 5;

struct Look {
    QColor color;
    double width;  // pixels of the screen
    double inked;  // share of a dash in its period; 1 for a line without gaps
};

Look LookOf(imaging::RectStyle style) {
    switch (style) {
        case imaging::RectStyle::Checked:
            return {kMarkedColor, 2.5, 1};
        case imaging::RectStyle::Unchecked:
            return {kEmptyColor, 2, 0.62};
        case imaging::RectStyle::Skipped:
            return {QColor(110, 110, 110), 2, 0.3};
        case imaging::RectStyle::Candidate:
            return {QColor(160, 60, 130), 2, 0.4};
        case imaging::RectStyle::Editable:
            break;
    }
    return {kMarkedColor, 1.5, 1};
}

// A whole number of dashes a side, with half a dash on either side of every corner, so that a small box still
// looks like one. `side` in pixels of the screen, `dots` of the device on each of them.
void BreakUp(QPen& pen, double side, double dots, double inked) {
    const double periods = std::max(2.0, std::round(side / 9));
    const double period = side * dots / periods / pen.widthF();
    pen.setDashPattern({inked * period, (1 - inked) * period});
    pen.setDashOffset(inked * period / 2);
}

// A frame that stands off the rectangle, dark on a light seam, over a tint that lets the mark show through.
// One pixel of the image takes `scale` pixels of the screen.
void PaintEmphasis(QPainter& painter, const QRectF& rect, double scale, double dots) {
    const double off = kEmphasisGap / std::max(scale, 0.01);
    const QRectF frame = rect.adjusted(-off, -off, off, off);
    painter.setPen(CosmeticPen(QColor(255, 255, 255, 220), 5 * dots));
    painter.setBrush(QColor(240, 228, 66, 70));
    painter.drawRect(frame);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(CosmeticPen(QColor(20, 20, 20), 2 * dots));
    painter.drawRect(frame);
}

}  // namespace

void RectItem::SetRect(const imaging::PageRect& rect) {
    prepareGeometryChange();
    rect_ = QRectF(rect.left, rect.top, rect.width, rect.height);
}

void RectItem::SetStyle(imaging::RectStyle style) {
    style_ = style;
    update();
}

void RectItem::SetEmphasised(bool emphasised) {
    if (emphasised == emphasised_)
        return;
    emphasised_ = emphasised;
    setZValue(emphasised ? 1 : 0);
    update();
}

QRectF RectItem::boundingRect() const {
    // The seam reaches beyond the rectangle by two pixels of the screen, which are many of the page when it
    // is small.
    constexpr double kReach = 40;
    return rect_.adjusted(-kReach, -kReach, kReach, kReach);
}

void RectItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const double side = scale * std::min(rect_.width(), rect_.height());
    const Look look = LookOf(style_);
    // Pens that keep their width count in dots of the device, of which a fine screen has several a pixel.
    const double dots = painter->device()->devicePixelRatio();
    const double width = dots * (side < kSmallSide ? kThinLine * look.width : look.width);
    if (emphasised_)
        PaintEmphasis(*painter, rect_, scale, dots);
    const double off = side < kSmallSide ? (width / dots / 2 + kSeam) / std::max(scale, 0.01) : 0;
    const QRectF outline = rect_.adjusted(-off, -off, off, off);
    painter->setPen(CosmeticPen(QColor(255, 255, 255, 200), width + 2 * kSeam * dots));
    painter->drawRect(outline);
    QPen pen = CosmeticPen(look.color, width);
    if (look.inked < 1 && side > 0)
        BreakUp(pen, side, dots, look.inked);
    painter->setPen(pen);
    painter->drawRect(outline);
}

}  // namespace tavrene::ui
