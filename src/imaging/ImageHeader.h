#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "imaging/Bitmap.h"
#include "imaging/TiffHeader.h"

namespace tavrene::imaging {

/// Which axes of an image file carry a resolution of their own. The library fills in defaults where there is
/// none, so the file itself is asked. PCX counts as carrying what the library reports; GIF carries none.
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

/// True when the file's header can be read and the picture that it promises is not too large and takes at
/// most 1 GB when it is decoded. Asked before the pixels are unpacked: a few kilobytes can unpack to
/// gigabytes.
bool MayBeDecoded(std::span<const std::byte> content, ImageFormat format);

/// The same of one picture of a TIFF.
bool MayBeDecoded(const TiffHeader& header);

/// False for a PCX file that holds fewer bytes than its header's lines take, or holds them not encoded: the
/// library would make up the page. Other formats notice damage when they are decoded.
bool HoldsItsLines(std::span<const std::byte> content, ImageFormat format);

}  // namespace tavrene::imaging
