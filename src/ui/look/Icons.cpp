#include "ui/look/Icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>
#include <array>
#include <utility>

#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

// A colour of the files and what it becomes on a light and on a dark window. A few hues tell commands apart
// at a glance; each has its own tone for dark windows, where the one for light ones would drown.
struct Ink {
    const char* inFile;
    const char* onLight;
    const char* onDark;
};
constexpr std::array kInks = {
    Ink{"#0a5fa8", "#0a5fa8", "#7db9f0"},
    Ink{"#0a6e3d", "#0a6e3d", "#63cf97"},
    Ink{"#bf3325", "#bf3325", "#f58e80"},
};
constexpr const char* kLine = "currentColor";
// Signs inside a filled shape are cut out of it: they show the window behind.
constexpr const char* kGround = "#f0f0f0";

QByteArray InInksOf(QByteArray picture, IconGround ground, bool enabled) {
    const QPalette palette = QGuiApplication::palette();
    const QColor window = palette.color(ground.ground);
    const QByteArray line =
        palette.color(enabled ? QPalette::Active : QPalette::Disabled, ground.text).name().toLatin1();
    const bool dark = window.lightnessF() < 0.5;
    picture.replace(kLine, line);
    picture.replace(kGround, window.name().toLatin1());
    for (const Ink& ink : kInks)
        picture.replace(ink.inFile, !enabled ? line.constData() : dark ? ink.onDark : ink.onLight);
    return picture;
}

// Paints its picture anew for every size and palette, so that it is crisp on every screen and follows a
// desktop that turns dark in the evening.
class SvgInkEngine final : public QIconEngine {
  public:
    SvgInkEngine(QByteArray picture, IconGround ground) : picture_(std::move(picture)), ground_(ground) {}

    QIconEngine* clone() const override { return new SvgInkEngine(picture_, ground_); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer renderer(InInksOf(picture_, ground_, mode != QIcon::Disabled));
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        paint(&painter, pixels.rect(), mode, state);
        return pixels;
    }

  private:
    QByteArray picture_;
    IconGround ground_;
};

}  // namespace

QIcon IconOf(std::string_view name, IconGround ground) {
    QFile file(":/icons/" + ToQt(name) + ".svg");
    return file.open(QIODevice::ReadOnly) ? QIcon(new SvgInkEngine(file.readAll(), ground)) : QIcon();
}

}  // namespace tavrene::ui
