#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "app/Files.h"
#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// What of an image is decoded. With the header alone the sizes are known and no pixel is unpacked; formats
/// for which the library cannot do that are decoded whole.
enum class Decode { Whole, HeaderOnly };

/// Decodes an image; no bitmap when the content is not of that format, is damaged, cut short or too large, or
/// when there is no image library. Prints nothing.
Bitmap DecodeImage(std::span<const std::byte> content, ImageFormat format, Decode extent = Decode::Whole);

/// The file type by the content itself, whatever its name; none for what the program cannot decode.
std::optional<ImageFormat> FormatOfContent(std::span<const std::byte> content);

/// Decodes an image of whatever format its content tells.
Bitmap DecodeAnyImage(std::span<const std::byte> content);

/// Encodes a one-bit image as TIFF with CCITT Group 4 compression; throws std::runtime_error when the library
/// refuses.
app::Bytes EncodeGroup4Tiff(const Bitmap& bitmap);

}  // namespace tavrene::imaging
