#include "imaging/ImageDecoder.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

#include "imaging/ImageHeader.h"
#include "imaging/ImageLibrary.h"
#include "imaging/JpegFile.h"
#include "imaging/LibraryMessages.h"
#include "imaging/TiffMetadata.h"

namespace tavrene::imaging {
namespace {

Bitmap Load(std::span<const std::byte> content, ImageFormat format, int flags) {
    const app::Bytes plain = format == ImageFormat::Tiff ? WithoutMetadata(content) : app::Bytes();
    const MemoryHandle memory = MemoryOver(plain.empty() ? content : plain);
    return Bitmap(Library().LoadFromMemory(static_cast<FREE_IMAGE_FORMAT>(format), memory.get(), flags));
}

Bitmap LoadUndamaged(std::span<const std::byte> content, ImageFormat format) {
    ListenToLibraries();
    Bitmap bitmap = Load(content, format, 0);
    return DamageWasMet() ? Bitmap() : std::move(bitmap);
}

// With an end marker the library can tell a picture that lacks nothing else from one that ends early.
Bitmap LoadJpeg(std::span<const std::byte> content) {
    const JpegOutline outline = OutlineOfJpeg(content);
    if (!outline.hasAllScans)
        return {};
    if (outline.hasEndMarker)
        return LoadUndamaged(content, ImageFormat::Jpeg);
    app::Bytes ended(content.begin(), content.end());
    ended.insert(ended.end(), {std::byte{0xFF}, std::byte{0xD9}});
    return LoadUndamaged(ended, ImageFormat::Jpeg);
}

Bitmap LoadWhole(std::span<const std::byte> content, ImageFormat format) {
    if (!MayBeDecoded(content, format) || !HoldsItsLines(content, format))
        return {};
    return format == ImageFormat::Jpeg ? LoadJpeg(content) : LoadUndamaged(content, format);
}

}  // namespace

Bitmap DecodeImage(std::span<const std::byte> content, ImageFormat format, Decode extent) {
    if (!HasImageLibrary())
        return {};
    if (extent == Decode::Whole)
        return LoadWhole(content, format);
    ListenToLibraries();
    return Load(content, format, FIF_LOAD_NOPIXELS);
}

std::optional<ImageFormat> FormatOfContent(std::span<const std::byte> content) {
    if (!HasImageLibrary())
        return std::nullopt;
    const MemoryHandle memory = MemoryOver(content);
    const auto format = static_cast<ImageFormat>(Library().GetFileTypeFromMemory(memory.get(), 0));
    return std::ranges::find(kImageFormats, format) == kImageFormats.end() ? std::nullopt
                                                                           : std::optional(format);
}

Bitmap DecodeAnyImage(std::span<const std::byte> content) {
    const std::optional<ImageFormat> format = FormatOfContent(content);
    return format ? DecodeImage(content, *format) : Bitmap();
}

app::Bytes EncodeGroup4Tiff(const Bitmap& bitmap) {
    ListenToLibraries();
    const MemoryHandle memory = NewMemory();
    if (!Library().SaveToMemory(FIF_TIFF, bitmap.Get(), memory.get(), TIFF_CCITTFAX4))
        throw std::runtime_error("The image library cannot write this page as TIFF.");
    return BytesOf(memory);
}

}  // namespace tavrene::imaging
