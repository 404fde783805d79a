#include "imaging/ImageHeader.h"

#include <optional>

#include "imaging/ByteReader.h"
#include "imaging/ImageDecoder.h"
#include "imaging/JpegFile.h"

namespace tavrene::imaging {
namespace {

using Order = ByteReader::Order;

constexpr std::int64_t kMaxSide = 32'767;
constexpr std::int64_t kMaxArea = 256'000'000;
constexpr std::int64_t kMaxBytes = std::int64_t{1} << 30;

ResolutionPresence FindTiffResolution(std::span<const std::byte> content) {
    for (const TiffHeader& first : ReadTiffHeaders(content, 1))
        return {first.hasResolutionX, first.hasResolutionY};
    return {};
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

// BMP: two numbers of the header, which its oldest form of 12 bytes does not have.
ResolutionPresence FindBmpResolution(std::span<const std::byte> content) {
    const ByteReader reader(content, Order::LittleEndian);
    if (reader.Number(14, 4) < 40)
        return {};
    return {reader.Number(38, 4) != 0, reader.Number(42, 4) != 0};
}

struct Extent {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t bytes = 0;
};

std::uint64_t SkipSubBlocks(const ByteReader& reader, std::uint64_t offset) {
    while (reader.Holds(offset, 1) && reader.Number(offset, 1) != 0)
        offset += 1 + reader.Number(offset, 1);
    return offset + 1;
}

// GIF: the size of the first picture. The library can only decode GIF whole.
std::optional<Extent> FirstGifPicture(std::span<const std::byte> content) {
    const ByteReader reader(content, Order::LittleEndian);
    const std::uint64_t flags = reader.Number(10, 1);
    std::uint64_t block = 13;
    if ((flags & 0x80U) != 0)
        block += 3 * (std::uint64_t{2} << (flags & 7U));
    while (reader.Holds(block, 10)) {
        const std::uint64_t kind = reader.Number(block, 1);
        if (kind == 0x2C) {
            const auto width = static_cast<std::int64_t>(reader.Number(block + 5, 2));
            const auto height = static_cast<std::int64_t>(reader.Number(block + 7, 2));
            return Extent{width, height, width * height};
        }
        if (kind != 0x21)
            break;
        block = SkipSubBlocks(reader, block + 2);
    }
    return std::nullopt;
}

std::optional<Extent> ExtentOf(std::span<const std::byte> content, ImageFormat format) {
    if (format == ImageFormat::Gif)
        return FirstGifPicture(content);
    if (format == ImageFormat::Tiff) {
        for (const TiffHeader& first : ReadTiffHeaders(content, 1))
            return Extent{first.width, first.height, first.decodedBytes};
        return std::nullopt;
    }
    if (format == ImageFormat::Jpeg) {
        // The library unpacks all scans of a progressive file before it tells its size.
        const JpegOutline jpeg = OutlineOfJpeg(content);
        return Extent{jpeg.width, jpeg.height, jpeg.width * jpeg.height * jpeg.components + jpeg.heldBytes};
    }
    const Bitmap header = DecodeImage(content, format, Decode::HeaderOnly);
    if (!header)
        return std::nullopt;
    return Extent{header.Width(), header.Height(), std::int64_t{header.Pitch()} * header.Height()};
}

bool IsWithinLimits(const Extent& extent) {
    return !IsTooLarge(extent.width, extent.height) && extent.bytes <= kMaxBytes;
}

}  // namespace

ResolutionPresence FindResolution(std::span<const std::byte> content, ImageFormat format) {
    switch (format) {
        case ImageFormat::Tiff:
            return FindTiffResolution(content);
        case ImageFormat::Png:
            return FindPngResolution(content);
        case ImageFormat::Jpeg: {
            const bool measured = OutlineOfJpeg(content).isMeasured;
            return {measured, measured};
        }
        case ImageFormat::Bmp:
            return FindBmpResolution(content);
        case ImageFormat::Gif:
        case ImageFormat::Webp:
            return {};
        default:
            return {true, true};
    }
}

bool IsTooLarge(std::int64_t width, std::int64_t height) {
    const std::int64_t gridColumns = (width + 31) / 32 * 32;
    return gridColumns > kMaxSide || height > kMaxSide || width * height > kMaxArea;
}

bool MayBeDecoded(std::span<const std::byte> content, ImageFormat format) {
    const std::optional<Extent> extent = ExtentOf(content, format);
    return extent && IsWithinLimits(*extent);
}

bool MayBeDecoded(const TiffHeader& header) {
    return IsWithinLimits({header.width, header.height, header.decodedBytes});
}

// Behind 128 bytes of header a byte stands for itself, or, with its two highest bits set, for up to 63
// repeats of the next one. In a file marked as not encoded every byte stands for itself; the library mixes up
// its lines.
bool HoldsItsLines(std::span<const std::byte> content, ImageFormat format) {
    constexpr std::uint64_t kHeader = 128;
    if (format != ImageFormat::Pcx)
        return true;
    const ByteReader reader(content, Order::LittleEndian);
    const std::uint64_t lines = reader.Number(10, 2) - reader.Number(6, 2) + 1;
    const std::uint64_t columns = reader.Number(8, 2) - reader.Number(4, 2) + 1;
    const std::uint64_t lineBytes = reader.Number(66, 2);
    const std::uint64_t wanted = lines * lineBytes * reader.Number(65, 1);
    std::uint64_t held = 0;
    std::uint64_t offset = kHeader;
    while (held < wanted && reader.Holds(offset, 1)) {
        const std::uint64_t byte = reader.Number(offset, 1);
        const bool isRun = byte >= 0xC0;
        if (isRun && !reader.Holds(offset, 2))
            return false;
        held += isRun ? byte - 0xC0 : 1;
        offset += isRun ? 2 : 1;
    }
    return reader.Number(2, 1) == 1 && held >= wanted && columns * reader.Number(3, 1) <= lineBytes * 8;
}

}  // namespace tavrene::imaging
