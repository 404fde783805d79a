#include "ui/look/CalmStyle.h"

#include <QPainter>
#include <QStyleHintReturn>
#include <QStyleOption>
#include <QWidget>

#include "ui/look/Contrast.h"
#include "ui/look/Icons.h"

namespace tavrene::ui {
namespace {

constexpr int kRing = 2;

int TakeRing(const QRect& area, QStyleHintReturn* data) {
    if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(data))
        mask->region = QRegion(area) - area.adjusted(kRing, kRing, -kRing, -kRing);
    return 1;
}

QColor RingOf(const QPalette& palette) {
    const QColor ring = palette.color(QPalette::Highlight);
    return Contrast(ring, palette.color(QPalette::Base)) < kSignContrast ? palette.color(QPalette::Text)
                                                                         : ring;
}

QRectF SquareIn(const QRectF& rect) {
    const double side = std::min(rect.width(), rect.height()) - 1;
    QRectF square(0, 0, side, side);
    square.moveCenter(rect.center());
    return square;
}

// The usual outline is a shade of the window's colour, which dark lists swallow. Leaves the painter ready for
// the sign inside.
void PaintOutline(const QStyleOption& option, QPainter& painter, const QRectF& box, double radius) {
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::Text), 1));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.setOpacity(isEnabled ? 0.75 : 0.4);
    painter.drawRoundedRect(box, radius, radius);
    painter.setOpacity(isEnabled ? 1 : 0.5);
}

void PaintRadio(const QStyleOption& option, QPainter& painter) {
    const QRectF circle = SquareIn(option.rect);
    painter.save();
    PaintOutline(option, painter, circle, circle.width() / 2);
    if (option.state.testFlag(QStyle::State_On)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(option.palette.color(QPalette::Text));
        painter.drawEllipse(circle.center(), circle.width() / 4, circle.width() / 4);
    }
    painter.restore();
}

void PaintTickBox(const QStyleOption& option, QPainter& painter) {
    const QRectF box = SquareIn(option.rect);
    painter.save();
    PaintOutline(option, painter, box, 2);
    painter.setPen(QPen(option.palette.color(QPalette::Text), box.width() / 6, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (option.state.testFlag(QStyle::State_On))
        painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)}));
    else if (option.state.testFlag(QStyle::State_NoChange))
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    painter.restore();
}

// As close to `color` as texts on or under `other` can be read.
QColor Readable(QColor color, const QColor& other) {
    constexpr int kSteps = 40;
    const bool isBright = other.lightnessF() > 0.5;
    for (int step = 0; step < kSteps && Contrast(color, other) < kTextContrast; ++step)
        color = isBright ? color.darker(104) : color.lighter(104);
    return color;
}

}  // namespace

// Many themes put white on a middle blue, which is hard to read; dark ones often leave links and the hints in
// empty fields as light windows have them.
void CalmStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
        palette.setColor(group, QPalette::Highlight,
                         Readable(color(QPalette::Highlight), color(QPalette::HighlightedText)));
        for (const auto link : {QPalette::Link, QPalette::LinkVisited})
            palette.setColor(group, link, Readable(color(link), color(QPalette::Window)));
        constexpr int kHint = 170;
        QColor hint = color(QPalette::Text);
        hint.setAlpha(kHint);
        palette.setColor(group, QPalette::PlaceholderText, hint);
    }
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 0;
        case SH_FocusFrame_AboveWidget:
            return 1;
        case SH_FocusFrame_Mask:
            return TakeRing(option->rect, data);
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
    return isMargin ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon CalmStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon != SP_TitleBarCloseButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    // Dark themes leave the ground of tool tips and notices light.
    return IconOf("Close", widget == nullptr
                               ? IconGround()
                               : IconGround{widget->backgroundRole(), widget->foregroundRole()});
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (element == CE_FocusFrame)
        painter->fillRect(option->rect, RingOf(option->palette));
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
        PaintTickBox(*option, *painter);
    else if (element == PE_IndicatorRadioButton)
        PaintRadio(*option, *painter);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

}  // namespace tavrene::ui
