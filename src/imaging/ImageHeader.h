#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// Which axes of an image file carry a resolution of their own. The library fills in defaults where there is
/// none, so the file itself is asked. BMP and PCX count as carrying what the library reports; GIF carries
/// none.
struct ResolutionPresence {
    bool x = false;
    bool y = false;
    bool operator==(const ResolutionPresence&) const = default;
};

/// Never reads outside `content`, whatever it holds.
ResolutionPresence FindResolution(std::span<const std::byte> content, ImageFormat format);

/// True for a picture of that many pixels a side whose grid would be wider or taller than 32,767 cells or
/// larger than 256 megapixels.
bool IsTooLarge(std::int64_t width, std::int64_t height);

/// The same of a file, by what it says. Asked before the pixels are unpacked: a few kilobytes can unpack to
/// gigabytes.
bool IsTooLarge(std::span<const std::byte> content, ImageFormat format);

/// False for a JPEG file that ends before its picture does: the library would fill up the rest with grey, and
/// marks on it would be lost in silence. Other formats notice that by themselves.
bool IsWhole(std::span<const std::byte> content, ImageFormat format);

}  // namespace tavrene::imaging
