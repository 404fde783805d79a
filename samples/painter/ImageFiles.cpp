#include "painter/ImageFiles.h"

#include <FreeImage.h>

#include <cmath>
#include <stdexcept>
#include <utility>

namespace tavrene::samples {

namespace {

constexpr double kInchesPerMeter = 1 / 0.0254;

imaging::Bitmap Allocate(const Canvas& canvas, int bitsPerPixel) {
    imaging::Bitmap bitmap(FreeImage_Allocate(canvas.Width(), canvas.Height(), bitsPerPixel));
    if (!bitmap)
        throw std::runtime_error("There is no memory for a page.");
    const auto dotsPerMeter = static_cast<unsigned>(std::lround(canvas.Dpi() * kInchesPerMeter));
    FreeImage_SetDotsPerMeterX(bitmap.Get(), dotsPerMeter);
    FreeImage_SetDotsPerMeterY(bitmap.Get(), dotsPerMeter);
    return bitmap;
}

/// The bits of scan line `row` (row 0 at the bottom of the picture).
BYTE* Line(const imaging::Bitmap& bitmap, int row) {
    return FreeImage_GetScanLine(bitmap.Get(), row);
}

void SetPalette(const imaging::Bitmap& bitmap, int entries) {
    RGBQUAD* palette = FreeImage_GetPalette(bitmap.Get());
    for (int i = 0; i < entries; ++i) {
        const auto shade = static_cast<BYTE>(i * 255 / (entries - 1));
        palette[i] = RGBQUAD{shade, shade, shade, 0};
    }
}

int SaveFlags(const imaging::Bitmap& bitmap, imaging::ImageFormat format, int quality) {
    if (format == imaging::ImageFormat::Jpeg)
        return quality | JPEG_OPTIMIZE;
    if (format == imaging::ImageFormat::Png)
        return PNG_Z_BEST_COMPRESSION;
    if (format == imaging::ImageFormat::Tiff)
        return FreeImage_GetBPP(bitmap.Get()) == 1 ? TIFF_CCITTFAX4 : TIFF_LZW;
    return 0;
}

}  // namespace

imaging::Bitmap ToBilevel(const Canvas& canvas, Photometric photometric, Shade level) {
    imaging::Bitmap bitmap = Allocate(canvas, 1);
    SetPalette(bitmap, 2);
    const bool inkIsSet = photometric == Photometric::MinIsWhite;
    if (inkIsSet)
        std::swap(FreeImage_GetPalette(bitmap.Get())[0], FreeImage_GetPalette(bitmap.Get())[1]);
    for (int y = 0; y < canvas.Height(); ++y) {
        BYTE* line = Line(bitmap, canvas.Height() - 1 - y);
        for (int x = 0; x < canvas.Width(); ++x)
            if ((canvas.At(x, y) < level) == inkIsSet)
                line[x / 8] = static_cast<BYTE>(line[x / 8] | (0x80U >> static_cast<unsigned>(x % 8)));
    }
    return bitmap;
}

imaging::Bitmap ToGrey(const Canvas& canvas) {
    imaging::Bitmap bitmap = Allocate(canvas, 8);
    SetPalette(bitmap, 256);
    for (int y = 0; y < canvas.Height(); ++y) {
        BYTE* line = Line(bitmap, canvas.Height() - 1 - y);
        for (int x = 0; x < canvas.Width(); ++x)
            line[x] = canvas.At(x, y);
    }
    return bitmap;
}

imaging::Bitmap ToColour(const Canvas& red, const Canvas& green, const Canvas& blue) {
    imaging::Bitmap bitmap = Allocate(red, 24);
    for (int y = 0; y < red.Height(); ++y) {
        BYTE* pixel = Line(bitmap, red.Height() - 1 - y);
        for (int x = 0; x < red.Width(); ++x, pixel += 3) {
            pixel[FI_RGBA_RED] = red.At(x, y);
            pixel[FI_RGBA_GREEN] = green.At(x, y);
            pixel[FI_RGBA_BLUE] = blue.At(x, y);
        }
    }
    return bitmap;
}

void SaveImage(const imaging::Bitmap& bitmap, imaging::ImageFormat format, const std::string& path,
               int quality) {
    const auto code = static_cast<FREE_IMAGE_FORMAT>(format);
    if (FreeImage_Save(code, bitmap.Get(), path.c_str(), SaveFlags(bitmap, format, quality)) == FALSE)
        throw std::runtime_error("The image " + path + " cannot be written.");
}

}  // namespace tavrene::samples
