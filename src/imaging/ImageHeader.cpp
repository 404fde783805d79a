#include "imaging/ImageHeader.h"

#include <algorithm>
#include <array>

#include "imaging/ByteReader.h"

namespace tavrene::imaging {
namespace {

using Order = ByteReader::Order;

constexpr std::int64_t kMaxSide = 32'767;
constexpr std::int64_t kMaxArea = 256'000'000;

// TIFF: the tags of the first directory, in the classic layout (42) or the one with 64-bit offsets (43).
ResolutionPresence FindTiffResolution(std::span<const std::byte> content) {
    const bool bigEndian = !content.empty() && content[0] == std::byte{'M'};
    const ByteReader reader(content, bigEndian ? Order::BigEndian : Order::LittleEndian);
    const bool wide = reader.Number(2, 2) == 43;
    const std::uint64_t directory = wide ? reader.Number(8, 8) : reader.Number(4, 4);
    const std::uint64_t entries = reader.Number(directory, wide ? 8 : 2);
    const std::uint64_t entrySize = wide ? 20 : 12;
    std::uint64_t entry = directory + (wide ? 8 : 2);
    ResolutionPresence found;
    for (std::uint64_t k = 0; k < entries && reader.Holds(entry, entrySize); ++k, entry += entrySize) {
        const std::uint64_t tag = reader.Number(entry, 2);
        found.x = found.x || tag == 282;
        found.y = found.y || tag == 283;
    }
    return found;
}

// PNG: the physical-size chunk, which counts when its unit is the metre. It stands before the picture data.
ResolutionPresence FindPngResolution(std::span<const std::byte> content) {
    constexpr std::uint64_t kPhysicalSize = 0x70485973;
    constexpr std::uint64_t kPictureData = 0x49444154;
    const ByteReader reader(content, Order::BigEndian);
    std::uint64_t chunk = 8;
    while (reader.Holds(chunk, 12)) {
        const std::uint64_t type = reader.Number(chunk + 4, 4);
        if (type == kPictureData)
            break;
        if (type == kPhysicalSize) {
            const bool metres = reader.Number(chunk + 16, 1) == 1;
            return {metres, metres};
        }
        chunk += 12 + reader.Number(chunk, 4);
    }
    return {};
}

// Calls `see(marker, offset)` for the segments of a JPEG file up to the first scan, whose offset it returns.
template <typename See>
std::uint64_t WalkJpegSegments(const ByteReader& reader, See see) {
    constexpr std::uint64_t kStartOfScan = 0xDA;
    std::uint64_t segment = 2;
    while (reader.Holds(segment, 4) && reader.Number(segment, 1) == 0xFF) {
        const std::uint64_t marker = reader.Number(segment + 1, 1);
        if (marker == kStartOfScan)
            break;
        see(marker, segment);
        segment += 2 + reader.Number(segment + 2, 2);
    }
    return segment;
}

// JPEG: the density unit of the JFIF segment, dots an inch (1) or a centimetre (2).
ResolutionPresence FindJpegResolution(std::span<const std::byte> content) {
    constexpr std::uint64_t kJfif = 0x4A46494600;
    const ByteReader reader(content, Order::BigEndian);
    bool measured = false;
    WalkJpegSegments(reader, [&](std::uint64_t marker, std::uint64_t segment) {
        const std::uint64_t unit = reader.Number(segment + 11, 1);
        if (marker == 0xE0 && reader.Number(segment + 4, 5) == kJfif)
            measured = unit == 1 || unit == 2;
    });
    return {measured, measured};
}

struct Size {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

std::uint64_t SkipSubBlocks(const ByteReader& reader, std::uint64_t offset) {
    while (reader.Holds(offset, 1) && reader.Number(offset, 1) != 0)
        offset += 1 + reader.Number(offset, 1);
    return offset + 1;
}

// GIF: the size of the first picture. The library can only decode GIF whole.
Size FirstGifPicture(std::span<const std::byte> content) {
    const ByteReader reader(content, Order::LittleEndian);
    const std::uint64_t flags = reader.Number(10, 1);
    std::uint64_t block = 13;
    if ((flags & 0x80U) != 0)
        block += 3 * (std::uint64_t{2} << (flags & 7U));
    while (reader.Holds(block, 10)) {
        const std::uint64_t kind = reader.Number(block, 1);
        if (kind == 0x2C)
            return {static_cast<std::int64_t>(reader.Number(block + 5, 2)),
                    static_cast<std::int64_t>(reader.Number(block + 7, 2))};
        if (kind != 0x21)
            break;
        block = SkipSubBlocks(reader, block + 2);
    }
    return {};
}

}  // namespace

ResolutionPresence FindResolution(std::span<const std::byte> content, ImageFormat format) {
    switch (format) {
        case ImageFormat::Tiff:
            return FindTiffResolution(content);
        case ImageFormat::Png:
            return FindPngResolution(content);
        case ImageFormat::Jpeg:
            return FindJpegResolution(content);
        case ImageFormat::Gif:
        case ImageFormat::Webp:
            return {};
        case ImageFormat::Bmp:
        case ImageFormat::Pcx:
        case ImageFormat::Jpeg2000:
        case ImageFormat::Jpeg2000Stream:
            break;
    }
    return {true, true};
}

bool IsWhole(std::span<const std::byte> content, ImageFormat format) {
    if (format != ImageFormat::Jpeg)
        return true;
    // Within a scan the byte FF is never followed by D9, the end of the image.
    const std::uint64_t scan =
        WalkJpegSegments(ByteReader(content, Order::BigEndian), [](std::uint64_t, std::uint64_t) {});
    constexpr std::array kEndOfImage = {std::byte{0xFF}, std::byte{0xD9}};
    const std::span<const std::byte> rest = content.subspan(std::min<std::uint64_t>(scan, content.size()));
    return std::search(rest.begin(), rest.end(), kEndOfImage.begin(), kEndOfImage.end()) != rest.end();
}

bool IsTooLarge(std::int64_t width, std::int64_t height) {
    const std::int64_t gridColumns = (width + 31) / 32 * 32;
    return gridColumns > kMaxSide || height > kMaxSide || width * height > kMaxArea;
}

bool IsTooLarge(std::span<const std::byte> content, ImageFormat format) {
    Size size;
    if (format == ImageFormat::Gif) {
        size = FirstGifPicture(content);
    } else if (const Bitmap header = DecodeImage(content, format, Decode::HeaderOnly)) {
        size = {header.Width(), header.Height()};
    }
    return IsTooLarge(size.width, size.height);
}

}  // namespace tavrene::imaging
