#include "ui/PageImage.h"

#include <cstring>

#include "imaging/PageReader.h"
#include "imaging/ScreenCopy.h"

namespace tavrene::ui {
QImage ToImage(const imaging::Bitmap& picture) {
    const bool grey = picture.BitsPerPixel() == 8;
    QImage image(picture.Width(), picture.Height(), grey ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    const auto bytes = static_cast<std::size_t>(picture.Width()) * (grey ? 1 : 4);
    // The library's first scan line is the bottom one.
    for (int y = 0; y < picture.Height(); ++y)
        std::memcpy(image.scanLine(y), picture.ScanLine(picture.Height() - 1 - y).data(), bytes);
    return image;
}

QImage ReadPageImage(const app::Files& files, const std::string& path) {
    const auto format = imaging::FormatOfExtension(path);
    if (!format)
        return {};
    try {
        const imaging::Bitmap picture =
            imaging::CopyForScreen(imaging::DecodeImage(files.Read(path), *format));
        return picture ? ToImage(picture) : QImage();
    } catch (const app::FileError&) {
        // Nothing to show is a state of the view; who needs the file itself tells of it.
        return {};
    }
}

}  // namespace tavrene::ui
