#include "imaging/PageReader.h"

#include <array>
#include <cmath>
#include <utility>

#include "app/Numeric.h"
#include "imaging/ImageHeader.h"
#include "imaging/ImageLibrary.h"
#include "imaging/TiffHeader.h"

namespace tavrene::imaging {
namespace {

constexpr BYTE kInkLevel = 128;

struct ExtensionFormat {
    std::string_view extension;
    ImageFormat format;
};

constexpr std::array kExtensions = {
    ExtensionFormat{"TIF", ImageFormat::Tiff}, ExtensionFormat{"PNG", ImageFormat::Png},
    ExtensionFormat{"GIF", ImageFormat::Gif},  ExtensionFormat{"JPG", ImageFormat::Jpeg},
    ExtensionFormat{"PCX", ImageFormat::Pcx},  ExtensionFormat{"BMP", ImageFormat::Bmp}};

bool IsReducedToTwoColors(ImageFormat format) {
    return format == ImageFormat::Png || format == ImageFormat::Gif || format == ImageFormat::Jpeg;
}

Bitmap LaidOnWhite(const Bitmap& bitmap) {
    RGBQUAD white{255, 255, 255, 0};
    const Bitmap full(Library().ConvertTo32Bits(bitmap.Get()));
    return Bitmap(Library().Composite(full.Get(), FALSE, &white, nullptr));
}

// Two colours at level 128; light pixels become bit 1. A one-bit picture already has its two colours.
Bitmap Thresholded(Bitmap bitmap) {
    const FREE_IMAGE_TYPE type = Library().GetImageType(bitmap.Get());
    if (Library().IsTransparent(bitmap.Get()) || type == FIT_RGBA16)
        bitmap = LaidOnWhite(bitmap);
    else if (type == FIT_RGB16)
        bitmap = Bitmap(Library().ConvertTo24Bits(bitmap.Get()));
    if (bitmap.BitsPerPixel() == 1)
        return bitmap;
    return Bitmap(Library().Threshold(bitmap.Get(), kInkLevel));
}

int Luminance(const RGBQUAD& color) {
    return 299 * color.rgbRed + 587 * color.rgbGreen + 114 * color.rgbBlue;
}

// The library does the same, but asks for the length of the line with every byte, which takes as long as all
// the rest of a page.
void InvertBits(Bitmap& bitmap) {
    const auto bytes = static_cast<std::size_t>(bitmap.Width() + 7) / 8;
    for (int row = 0; row < bitmap.Height(); ++row)
        for (std::uint8_t& byte : bitmap.ScanLine(row).first(bytes))
            byte = static_cast<std::uint8_t>(~byte);
}

// Turns the bits round where bit 1 is the lighter colour. True when they were.
bool MakeInkSetBits(Bitmap& bitmap) {
    const RGBQUAD* const palette = Library().GetPalette(bitmap.Get());
    const bool inverted = Luminance(palette[1]) >= Luminance(palette[0]);
    if (inverted)
        InvertBits(bitmap);
    MakeInkDark(bitmap);
    return inverted;
}

WorkGrid Unpacked(const Bitmap& bitmap) {
    WorkGrid grid(bitmap.Width(), bitmap.Pitch() * 8, bitmap.Height());
    for (int row = 0; row < grid.Rows(); ++row)
        grid.UnpackScanLine(row, bitmap.ScanLine(row));
    return grid;
}

std::int16_t DotsPerInch(unsigned dotsPerMetre) {
    return app::ClampToInt16(std::floor(dotsPerMetre * 0.0254 + 0.5));
}

app::Bytes ContentOrNothing(const app::Files& files, const std::string& path) {
    try {
        return files.Read(path);
    } catch (const app::FileError&) {
        return {};
    }
}

}  // namespace

std::string_view ReasonOf(PageError error) {
    switch (error) {
        case PageError::UnknownType:
            return "Unrecognized File type";
        case PageError::TooManyColors:
            return "Unable to process since image has more than 2 colors";
        case PageError::NoLibrary:
            return "FreeImage is not available";
        case PageError::NotABitmap:
            break;
    }
    return "Image not in bitmap format";
}

std::optional<ImageFormat> FormatOfExtension(std::string_view path) {
    const std::string extension = app::UpperCase(app::Extension(path));
    for (const ExtensionFormat& entry : kExtensions) {
        if (entry.extension == extension)
            return entry.format;
    }
    return std::nullopt;
}

ImageFormat SpecimenFormat(std::string_view path) {
    const ImageFormat format = FormatOfExtension(path).value_or(ImageFormat::Tiff);
    return format == ImageFormat::Jpeg || format == ImageFormat::Png ? format : ImageFormat::Tiff;
}

std::variant<Page, PageError> ReadSpecimen(const app::Files& files, const std::string& path) {
    return ReadPage(files, path, SpecimenFormat(path));
}

std::variant<Page, PageError> ReadPage(const app::Files& files, const std::string& path) {
    const std::optional<ImageFormat> format = FormatOfExtension(path);
    if (!format)
        return PageError::UnknownType;
    return ReadPage(files, path, *format);
}

std::variant<Page, PageError> ReadPage(const app::Files& files, const std::string& path, ImageFormat format) {
    return PageOf(ContentOrNothing(files, path), format);
}

std::variant<Page, PageError> PageOf(std::span<const std::byte> content, ImageFormat format) {
    if (!HasImageLibrary())
        return PageError::NoLibrary;
    Page page;
    page.format = format;
    page.bitmap = DecodeImage(content, format);
    if (page.bitmap) {
        const ResolutionPresence carried = FindResolution(content, format);
        page.DPI_X = carried.x ? DotsPerInch(Library().GetDotsPerMeterX(page.bitmap.Get())) : std::int16_t{0};
        page.DPI_Y = carried.y ? DotsPerInch(Library().GetDotsPerMeterY(page.bitmap.Get())) : std::int16_t{0};
        if (IsReducedToTwoColors(format))
            page.bitmap = Thresholded(std::move(page.bitmap));
    }
    if (!page.bitmap.IsStandardBitmap())
        return PageError::NotABitmap;
    if (page.bitmap.BitsPerPixel() > 1)
        return PageError::TooManyColors;
    page.inverted = MakeInkSetBits(page.bitmap);
    page.grid = Unpacked(page.bitmap);
    if (format == ImageFormat::Tiff)
        page.furtherPages = CountTiffPictures(content) - 1;
    return page;
}

}  // namespace tavrene::imaging
