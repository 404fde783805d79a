#include "ui/shell/Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStringList>
#include <functional>
#include <map>

#include "ui/base/QtText.h"
#include "ui/shell/IconData.h"

namespace tavrene::ui {
namespace {

constexpr double kSquare = 24;
constexpr double kLineWidth = 1.5;

QPainterPath ParsePath(std::string_view text) {
    static const std::map<QChar, std::function<void(QPainterPath&, const double*)>> kSteps = {
        {'M', [](QPainterPath& path, const double* v) { path.moveTo(v[0], v[1]); }},
        {'L', [](QPainterPath& path, const double* v) { path.lineTo(v[0], v[1]); }},
        {'C', [](QPainterPath& path, const double* v) { path.cubicTo(v[0], v[1], v[2], v[3], v[4], v[5]); }},
        {'O', [](QPainterPath& path, const double* v) { path.addEllipse(QPointF(v[0], v[1]), v[2], v[2]); }},
        {'R', [](QPainterPath& path, const double* v) { path.addRect(v[0], v[1], v[2], v[3]); }},
        {'Z', [](QPainterPath& path, const double*) { path.closeSubpath(); }},
    };
    QPainterPath path;
    const QStringList words = ToQt(text).split(' ');
    for (qsizetype i = 0; i < words.size();) {
        const QChar step = words[i++].front();
        double values[6] = {};
        for (int k = 0; k < 6 && i < words.size() && !words[i].front().isLetter(); ++k)
            values[k] = words[i++].toDouble();
        kSteps.at(step)(path, values);
    }
    return path;
}

QColor ColorOf(Ink ink) {
    const QPalette palette = QGuiApplication::palette();
    switch (ink) {
        case Ink::Paper:
            return palette.color(QPalette::Base);
        case Ink::Blue:
            return {0, 102, 170};
        case Ink::Green:
            return {0, 130, 80};
        case Ink::Red:
            return {196, 60, 40};
        case Ink::Amber:
            return {222, 160, 40};
        case Ink::Line:
            break;
    }
    return palette.color(QPalette::WindowText);
}

void PaintPart(QPainter& painter, const IconPart& part) {
    const QColor color = ColorOf(part.ink);
    const bool paper = part.ink == Ink::Paper;
    const QColor outline = paper ? ColorOf(Ink::Line) : part.filled ? color.darker(125) : color;
    const double width = part.filled || part.ink == Ink::Line ? kLineWidth : kLineWidth + 0.4;
    painter.setPen(QPen(outline, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(part.filled ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPath(ParsePath(part.path));
}

// Paints its picture anew for every size, so that it is crisp on every screen.
class PathIconEngine final : public QIconEngine {
  public:
    explicit PathIconEngine(std::span<const IconPart> parts) : parts_(parts) {}

    QIconEngine* clone() const override { return new PathIconEngine(parts_); }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(mode == QIcon::Disabled ? 0.28 : 1.0);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSquare, rect.height() / kSquare);
        for (const IconPart& part : parts_)
            PaintPart(*painter, part);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

  private:
    std::span<const IconPart> parts_;
};

}  // namespace

QIcon IconOf(std::string_view name) {
    const auto parts = PartsOfIcon(name);
    return parts.empty() ? QIcon() : QIcon(new PathIconEngine(parts));
}

}  // namespace tavrene::ui
