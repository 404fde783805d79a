#include "ui/look/CalmStyle.h"

#include <QPainter>
#include <QStyleHintReturn>
#include <QStyleOption>

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

// The usual outline is a shade of the window's colour, which dark lists swallow.
void PaintTickBox(const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const double side = std::min(option.rect.width(), option.rect.height()) - 1.0;
    QRectF box(0, 0, side, side);
    box.moveCenter(QRectF(option.rect).center());
    QColor line = palette.color(QPalette::Text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1));
    painter.setBrush(palette.color(QPalette::Base));
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 0.75 : 0.4);
    painter.drawRoundedRect(box, 2, 2);
    painter.setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : 0.5);
    painter.setPen(QPen(line, side / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&box](double x, double y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    if (option.state.testFlag(QStyle::State_On))
        painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)}));
    else if (option.state.testFlag(QStyle::State_NoChange))
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    painter.restore();
}

}  // namespace

// Many themes put white on a middle blue, which is hard to read.
void CalmStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    constexpr int kSteps = 20;
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        QColor ground = palette.color(group, QPalette::Highlight);
        const bool isBright = text.lightnessF() > 0.5;
        for (int step = 0; step < kSteps && Contrast(text, ground) < kTextContrast; ++step)
            ground = isBright ? ground.darker(104) : ground.lighter(104);
        palette.setColor(group, QPalette::Highlight, ground);
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
    return icon == SP_TitleBarCloseButton ? IconOf("Close") : QProxyStyle::standardIcon(icon, option, widget);
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
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

}  // namespace tavrene::ui
