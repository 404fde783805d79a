#include "ui/page/PageImage.h"

#include <cstring>

#include "imaging/ImageDecoder.h"
#include "imaging/ScreenPicture.h"

namespace tavrene::ui {
namespace {

QImage::Format FormatOf(const imaging::Bitmap& picture) {
    switch (picture.BitsPerPixel()) {
        case 1:
            return QImage::Format_Mono;
        case 8:
            return QImage::Format_Grayscale8;
        default:
            return QImage::Format_RGB32;
    }
}

}  // namespace

QImage ToImage(const imaging::Bitmap& picture) {
    if (!picture)
        return {};
    QImage image(picture.Width(), picture.Height(), FormatOf(picture));
    if (image.isNull())
        return {};
    if (picture.BitsPerPixel() == 1)
        image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    const int bits = picture.Width() * picture.BitsPerPixel();
    const auto bytes = static_cast<std::size_t>(bits + 7) / 8;
    // The library's first scan line is the bottom one.
    for (int y = 0; y < picture.Height(); ++y)
        std::memcpy(image.scanLine(y), picture.ScanLine(picture.Height() - 1 - y).data(), bytes);
    return image;
}

QImage ReadPageImage(const app::Files& files, const std::string& path) {
    try {
        // By its content: a specimen is read as TIFF whatever its extension.
        const imaging::Bitmap picture = imaging::ScreenPicture(imaging::DecodeAnyImage(files.Read(path)));
        return picture ? ToImage(picture) : QImage();
    } catch (const app::FileError&) {
        // Nothing to show is a state of the view; who needs the file itself tells of it.
        return {};
    }
}

}  // namespace tavrene::ui
