#pragma once

#include <QProxyStyle>

namespace tavrene::ui {

/// The same look on every desktop, light or dark: plain words on the buttons of message boxes, tick boxes and
/// selected lines that can be seen on every ground, and a ring inside the edges of what has the keyboard, for
/// lists that touch each other leave no room around them.
class CalmStyle final : public QProxyStyle {
  public:
    CalmStyle() : QProxyStyle("Fusion") {}

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace tavrene::ui
