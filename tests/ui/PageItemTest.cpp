#include <gtest/gtest.h>

#include <QGraphicsScene>
#include <QPainter>
#include <cmath>
#include <cstdlib>
#include <random>

#include "painter/ImageFiles.h"
#include "support/TempFolder.h"
#include "support/TestForm.h"
#include "ui/page/PageImage.h"
#include "ui/page/PageItem.h"

namespace tavrene::ui {
namespace {

QImage Painted(const QImage& page, double zoom) {
    QGraphicsScene scene;
    auto* const item = new PageItem;
    item->SetImage(page);
    scene.addItem(item);
    const QSize size(static_cast<int>(page.width() * zoom), static_cast<int>(page.height() * zoom));
    QImage painted(size, QImage::Format_RGB32);
    painted.fill(Qt::white);
    QPainter painter(&painted);
    scene.render(&painter, QRectF({0, 0}, size), QRectF({0, 0}, QSizeF(size) / zoom));
    return painted;
}

// A one-bit page takes a quicker way to the same picture than a grey one.
TEST(PageItemTest, AOneBitPageLooksLikeTheSamePageInGrey) {
    std::mt19937 random(5);
    QImage page(333, 257, QImage::Format_Mono);
    page.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    page.fill(0);
    QPainter painter(&page);
    for (int k = 0; k < 12; ++k)
        painter.fillRect(static_cast<int>(random() % 300), static_cast<int>(random() % 230), 25, 19,
                         Qt::black);
    painter.end();
    for (const double zoom : {0.07, 0.12, 0.2, 0.3, 0.34, 0.45, 0.7, 1.0, 2.0}) {
        SCOPED_TRACE(zoom);
        const QImage seen = Painted(page, zoom);
        const QImage grey = Painted(page.convertToFormat(QImage::Format_Grayscale8), zoom);
        double difference = 0;
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                difference += std::abs(qGray(seen.pixel(x, y)) - qGray(grey.pixel(x, y)));
        EXPECT_LT(difference / (seen.width() * seen.height()), 1.5);
    }
    PageItem bits;
    PageItem grey;
    bits.SetImage(page);
    grey.SetImage(page.convertToFormat(QImage::Format_Grayscale8));
    const auto upTo = [&](int last) { return static_cast<double>(random() % static_cast<unsigned>(last)); };
    for (int k = 0; k < 300; ++k) {
        const QRectF part(upTo(340) - 10, upTo(260) - 10, 1 + upTo(60), 1 + upTo(20));
        EXPECT_EQ(bits.PrintedUpTo(part), grey.PrintedUpTo(part)) << k;
    }
}

// The shown page lies as the boxes that are drawn on it.
TEST(PageItemTest, AFileIsShownTheRightWayUp) {
    const test::TempFolder folder;
    const app::DiskFiles files;
    const test::TestForm form = test::TestForm::Grid(2, 2);
    const profiles::OmrBox& box = form.boxes[0];
    const int middle = (box.T + box.B) / 2;
    const samples::Canvas canvas = form.Paint({});
    const imaging::Bitmap bitmaps[] = {samples::ToBilevel(canvas),
                                       samples::ToBilevel(canvas, samples::Photometric::MinIsBlack),
                                       samples::ToGrey(canvas), samples::ToColour(canvas, canvas, canvas)};
    for (const imaging::Bitmap& bitmap : bitmaps) {
        SCOPED_TRACE(bitmap.BitsPerPixel());
        samples::SaveImage(bitmap, imaging::ImageFormat::Png, folder.File("a.png"));
        const QImage page = ReadPageImage(files, folder.File("a.png"));
        ASSERT_FALSE(page.isNull());
        EXPECT_LT(qGray(page.pixel(box.L, middle)), 64);
        EXPECT_GT(qGray(page.pixel((box.L + box.R) / 2, middle)), 192);
        EXPECT_GT(qGray(page.pixel(box.L, box.T - 5)), 192);
        EXPECT_GT(qGray(page.pixel(box.L, page.height() - 1 - middle)), 192);
        EXPECT_GT(qGray(page.pixel(page.width() - 1 - box.L, middle)), 192);
    }
}

}  // namespace
}  // namespace tavrene::ui
