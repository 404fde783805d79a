#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cstdlib>
#include <map>
#include <vector>

#include "ui/base/QtText.h"
#include "ui/commands/CommandTable.h"
#include "ui/look/Contrast.h"
#include "ui/look/Icons.h"

namespace tavrene::ui {
namespace {

QPalette DarkPalette() {
    QPalette palette(QColor(53, 53, 53), QColor(53, 53, 53));
    palette.setColor(QPalette::WindowText, QColor(235, 235, 235));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 120, 120));
    return palette;
}

class IconsTest : public testing::Test {
  protected:
    void TearDown() override { QApplication::setPalette(standard_); }

    QColor Window() const { return QApplication::palette().color(QPalette::Window); }

    QImage Painted(std::string_view name, int side, QIcon::Mode mode = QIcon::Normal) {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Window());
        QPainter painter(&image);
        IconOf(name).paint(&painter, image.rect(), Qt::AlignCenter, mode);
        return image;
    }

    // The colours that a picture is painted in, without the shades along its edges: at this size the strokes
    // end between two pixels, and a shade covers less than a hundredth.
    std::vector<QColor> InksOf(std::string_view name) {
        const QImage image = Painted(name, 384);
        std::map<QRgb, int> pixels;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                ++pixels[image.pixel(x, y)];
        pixels.erase(Window().rgb());
        std::vector<QColor> inks;
        for (const auto& [color, count] : pixels)
            if (count > image.width() * image.height() / 100)
                inks.emplace_back(color);
        return inks;
    }

    QPalette standard_ = QApplication::palette();
};

std::vector<std::string_view> PicturesOfCommands() {
    std::vector<std::string_view> names;
    for (const commands::CommandInfo& info : commands::CommandTable())
        if (!info.icon.empty())
            names.push_back(info.icon);
    return names;
}

TEST_F(IconsTest, EveryInkStandsOutFromTheToolbarInLightAndDarkPalettes) {
    for (const auto& palette : std::vector<QPalette>{standard_, DarkPalette()}) {
        QApplication::setPalette(palette);
        for (const std::string_view name : PicturesOfCommands()) {
            EXPECT_FALSE(InksOf(name).empty()) << name;
            for (const QColor& ink : InksOf(name))
                EXPECT_GE(Contrast(ink, Window()), 3)
                    << name << ": " << FromQt(ink.name()) << " on " << FromQt(Window().name());
        }
    }
}

// In grey, as in a hurry or by eyes that do not tell green from red.
TEST_F(IconsTest, NoTwoCommandsLookAlike) {
    const auto names = PicturesOfCommands();
    for (std::size_t a = 0; a < names.size(); ++a)
        for (std::size_t b = a + 1; b < names.size(); ++b) {
            const QImage first = Painted(names[a], 24).convertToFormat(QImage::Format_Grayscale8);
            const QImage second = Painted(names[b], 24).convertToFormat(QImage::Format_Grayscale8);
            int different = 0;
            for (int y = 0; y < 24; ++y)
                for (int x = 0; x < 24; ++x)
                    different += std::abs(qGray(first.pixel(x, y)) - qGray(second.pixel(x, y))) > 64 ? 1 : 0;
            // Zoom in and zoom out differ by one upright stroke.
            EXPECT_GE(different, 8) << names[a] << " and " << names[b];
        }
}

TEST_F(IconsTest, IsPaintedForTheScreenAndGreyWhenDisabled) {
    for (const std::string_view name : PicturesOfCommands()) {
        const QPixmap sharp = IconOf(name).pixmap(QSize(24, 24), 2.0);
        EXPECT_EQ(sharp.size(), QSize(48, 48)) << name;
        const QImage doubled = IconOf(name).pixmap(QSize(24, 24), 1.0).toImage().scaled(48, 48);
        EXPECT_NE(sharp.toImage().convertToFormat(QImage::Format_ARGB32),
                  doubled.convertToFormat(QImage::Format_ARGB32))
            << name;
        const QImage disabled = Painted(name, 24, QIcon::Disabled);
        EXPECT_TRUE(disabled.convertToFormat(QImage::Format_RGB32).allGray()) << name;
        EXPECT_NE(disabled, Painted(name, 24)) << name;
    }
}

}  // namespace
}  // namespace tavrene::ui
