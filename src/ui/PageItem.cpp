#include "ui/PageItem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

namespace tavrene::ui {
namespace {

constexpr int kMaxBlock = 8;

constexpr std::array<std::uint8_t, 256> kBitCounts = [] {
    std::array<std::uint8_t, 256> counts{};
    for (std::size_t byte = 0; byte < counts.size(); ++byte)
        counts[byte] = static_cast<std::uint8_t>(std::popcount(byte));
    return counts;
}();

// The mean of every block of n x n pixels of a one-bit page. Smooth scaling takes many times as long when it
// is given the page itself.
QImage MeansOfBlocks(const QImage& page, int n) {
    QImage means(page.width() / n, page.height() / n, QImage::Format_Grayscale8);
    std::vector<int> ink(static_cast<std::size_t>(means.width()));
    for (int y = 0; y < means.height(); ++y) {
        std::fill(ink.begin(), ink.end(), 0);
        for (int row = y * n; row < (y + 1) * n; ++row) {
            const uchar* const bits = page.constScanLine(row);
            int at = 0;
            for (int& sum : ink) {
                const unsigned after = at % 8 + n > 8 ? bits[at / 8 + 1] : 0U;
                const unsigned window = (static_cast<unsigned>(bits[at / 8]) << 8U | after) << (at % 8);
                sum += kBitCounts[(window & 0xFFFFU) >> (16 - n)];
                at += n;
            }
        }
        std::transform(ink.begin(), ink.end(), means.scanLine(y),
                       [n](int sum) { return static_cast<uchar>(255 - 255 * sum / (n * n)); });
    }
    return means;
}

}  // namespace

void PageItem::SetImage(QImage image) {
    prepareGeometryChange();
    image_ = std::move(image);
    pixmap_ = {};
    pixmapScale_ = 0;
    update();
}

QRectF PageItem::boundingRect() const {
    return {QPointF(0, 0), Size()};
}

void PageItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) {
    if (image_.isNull())
        return;
    const double zoom = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const double scale = std::min(1.0, zoom * painter->device()->devicePixelRatio());
    if (scale == 1)
        PaintPart(*painter, option->exposedRect);
    else
        PaintSmaller(*painter, scale);
}

// A pixmap of the whole page would take longer to make than all the rest of showing it.
void PageItem::PaintPart(QPainter& painter, const QRectF& exposed) const {
    const QRect part = exposed.toAlignedRect() & image_.rect();
    painter.drawImage(part, image_, part);
}

void PageItem::PaintSmaller(QPainter& painter, double scale) {
    if (scale != pixmapScale_) {
        const int n = std::min({static_cast<int>(1 / scale), kMaxBlock, image_.width(), image_.height()});
        const bool isReduced = image_.format() == QImage::Format_Mono && n > 1;
        const QImage page = isReduced ? MeansOfBlocks(image_, n) : image_;
        // What is left beside the last whole blocks is less than a pixel of the screen.
        pixmapPlace_ = QRectF({0, 0}, page.size() * (isReduced ? n : 1));
        const QSize size = (pixmapPlace_.size() * scale).toSize().expandedTo({1, 1});
        pixmap_ = QPixmap::fromImage(page.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        pixmapScale_ = scale;
    }
    painter.drawPixmap(pixmapPlace_, pixmap_, pixmap_.rect());
}

}  // namespace tavrene::ui
