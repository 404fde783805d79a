#include "imaging/ScanPicture.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "imaging/ImageDecoder.h"
#include "imaging/ImageLibrary.h"
#include "imaging/LibraryHandles.h"

namespace tavrene::imaging {
namespace {

enum class Shades { BlackAndWhite, Grey, Colour };

bool IsPureBlackOrWhite(std::uint8_t level) {
    return level == 0 || level == 255;
}

// What the pixels of one scan line need; `channels` are 1 (grey), 3 or 4 bytes.
Shades ShadesOf(std::span<const std::uint8_t> line, std::size_t channels) {
    Shades shades = Shades::BlackAndWhite;
    for (std::size_t at = 0; at < line.size(); at += channels) {
        if (channels >= 3 && (line[at] != line[at + 1] || line[at] != line[at + 2]))
            return Shades::Colour;
        if (!IsPureBlackOrWhite(line[at]))
            shades = Shades::Grey;
    }
    return shades;
}

Shades ShadesOf(const Bitmap& picture) {
    const auto channels = static_cast<std::size_t>(picture.BitsPerPixel()) / 8;
    Shades shades = Shades::BlackAndWhite;
    for (int row = 0; row < picture.Height() && shades != Shades::Colour; ++row) {
        const auto line = picture.ScanLine(row).first(static_cast<std::size_t>(picture.Width()) * channels);
        shades = std::max(shades, ShadesOf(line, channels));
    }
    return shades;
}

// One bit a pixel of the first of `channels` bytes a pixel.
Bitmap PackedToBits(const Bitmap& picture) {
    const auto channels = static_cast<std::size_t>(picture.BitsPerPixel()) / 8;
    Bitmap bits = NewPicture(picture.Width(), picture.Height(), 1);
    Library().SetDotsPerMeterX(bits.Get(), Library().GetDotsPerMeterX(picture.Get()));
    Library().SetDotsPerMeterY(bits.Get(), Library().GetDotsPerMeterY(picture.Get()));
    for (int row = 0; row < picture.Height(); ++row) {
        const std::span<const std::uint8_t> from = picture.ScanLine(row);
        const std::span<std::uint8_t> to = bits.ScanLine(row);
        for (std::size_t x = 0; x < static_cast<std::size_t>(picture.Width()); ++x) {
            if (from[x * channels] == 0)
                to[x / 8] = static_cast<std::uint8_t>(to[x / 8] | 0x80U >> x % 8);
        }
    }
    return bits;
}

bool IsGreyScale(const Bitmap& picture) {
    return picture.BitsPerPixel() == 8 && Library().GetColorType(picture.Get()) == FIC_MINISBLACK;
}

bool IsBlackAndWhite(const Bitmap& picture) {
    const FREE_IMAGE_COLOR_TYPE colors = Library().GetColorType(picture.Get());
    return picture.BitsPerPixel() == 1 && (colors == FIC_MINISBLACK || colors == FIC_MINISWHITE);
}

app::Bytes EncodePng(const Bitmap& picture) {
    const MemoryHandle memory = NewMemory();
    // Packing harder takes four times as long and saves a seventh.
    if (!Library().SaveToMemory(FIF_PNG, picture.Get(), memory.get(), PNG_Z_BEST_SPEED))
        throw std::runtime_error("The image library cannot write this picture as PNG.");
    return BytesOf(memory);
}

}  // namespace

Bitmap NewPicture(int width, int height, int bitsPerPixel) {
    Bitmap picture(Library().Allocate(width, height, bitsPerPixel, 0, 0, 0));
    if (!picture)
        throw std::runtime_error("There is not enough memory for a picture.");
    if (bitsPerPixel == 1)
        MakeInkDark(picture);
    return picture;
}

void SetResolution(Bitmap& picture, double x, double y) {
    Library().SetDotsPerMeterX(picture.Get(), static_cast<unsigned>(std::lround(x / 0.0254)));
    Library().SetDotsPerMeterY(picture.Get(), static_cast<unsigned>(std::lround(y / 0.0254)));
}

Bitmap Turned(Bitmap picture, Turn turn) {
    if (turn.mirrored)
        Library().FlipHorizontal(picture.Get());
    if (turn.quarters == 0)
        return picture;
    Bitmap turned(Library().Rotate(picture.Get(), -90.0 * turn.quarters, nullptr));
    if (!turned)
        throw std::runtime_error("There is not enough memory for a picture.");
    return turned;
}

Bitmap InFewestBits(Bitmap picture) {
    const int bits = picture.BitsPerPixel();
    const bool isOpaqueColour = (bits == 24 || bits == 32) && !Library().IsTransparent(picture.Get());
    if (!picture.IsStandardBitmap() || !(IsGreyScale(picture) || isOpaqueColour))
        return picture;
    switch (ShadesOf(picture)) {
        case Shades::BlackAndWhite:
            return PackedToBits(picture);
        case Shades::Grey:
            return bits == 8 ? std::move(picture) : Bitmap(Library().ConvertTo8Bits(picture.Get()));
        case Shades::Colour:
            break;
    }
    return picture;
}

ScanFile EncodeScan(Bitmap picture) {
    picture = InFewestBits(std::move(picture));
    if (picture.IsStandardBitmap() && IsBlackAndWhite(picture))
        return {EncodeGroup4Tiff(picture), ".tif"};
    return {EncodePng(picture), ".png"};
}

}  // namespace tavrene::imaging
