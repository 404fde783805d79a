#include "imaging/TiffHeader.h"

#include <tiffio.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "imaging/LibraryMessages.h"

namespace tavrene::imaging {
namespace {

// A file in memory, as the TIFF library reads it.
struct Source {
    std::span<const std::byte> content;
    std::uint64_t position = 0;
};

Source& SourceOf(thandle_t handle) {
    return *static_cast<Source*>(handle);
}

tmsize_t Read(thandle_t handle, void* to, tmsize_t length) {
    Source& source = SourceOf(handle);
    if (source.position >= source.content.size())
        return 0;
    const std::uint64_t count =
        std::min(static_cast<std::uint64_t>(length), source.content.size() - source.position);
    std::memcpy(to, source.content.data() + source.position, count);
    source.position += count;
    return static_cast<tmsize_t>(count);
}

tmsize_t RefuseToWrite(thandle_t, void*, tmsize_t) {
    return 0;
}

toff_t Seek(thandle_t handle, toff_t offset, int from) {
    Source& source = SourceOf(handle);
    const toff_t start = from == SEEK_CUR ? source.position : from == SEEK_END ? source.content.size() : 0;
    return source.position = start + offset;
}

int Close(thandle_t) {
    return 0;
}

toff_t SizeOf(thandle_t handle) {
    return SourceOf(handle).content.size();
}

struct CloseTiff {
    void operator()(TIFF* file) const { TIFFClose(file); }
};
using TiffFile = std::unique_ptr<TIFF, CloseTiff>;

// "m": the file is read through the functions above, not mapped.
TiffFile Open(Source& source) {
    return TiffFile(
        TIFFClientOpen("", "rm", &source, Read, RefuseToWrite, Seek, Close, SizeOf, nullptr, nullptr));
}

template <typename Number>
Number NumberOf(TIFF* file, ttag_t tag) {
    Number value = 0;
    TIFFGetFieldDefaulted(file, tag, &value);
    return value;
}

bool HasNumber(TIFF* file, ttag_t tag) {
    float value = 0;
    return TIFFGetField(file, tag, &value) == 1;
}

// The image library ends the program over planes of less than a byte a pixel.
bool HasPlanesOfBits(TIFF* file) {
    return NumberOf<std::uint16_t>(file, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE &&
           NumberOf<std::uint16_t>(file, TIFFTAG_BITSPERSAMPLE) < 8;
}

// What the image library takes at least: its bitmap, up to four bytes a pixel unless it is a bilevel one, and
// the strip or tile that is decoded into it.
std::int64_t DecodedBytes(TIFF* file, std::int64_t width, std::int64_t height) {
    const bool isBilevel = NumberOf<std::uint16_t>(file, TIFFTAG_BITSPERSAMPLE) == 1 &&
                           NumberOf<std::uint16_t>(file, TIFFTAG_SAMPLESPERPIXEL) == 1;
    const std::uint64_t line = TIFFScanlineSize64(file);
    const std::uint64_t part = TIFFIsTiled(file) != 0 ? TIFFTileSize64(file) : TIFFStripSize64(file);
    // As real numbers, for a header may name any size; what is too large need not be exact.
    const double pixels = static_cast<double>(width) * static_cast<double>(height);
    const double bitmap = std::max(static_cast<double>(line) * static_cast<double>(height),
                                   isBilevel ? pixels / 8 : pixels * 4);
    const double bytes = bitmap + static_cast<double>(part);
    return static_cast<std::int64_t>(std::min(bytes, 1e18));
}

TiffHeader HeaderOf(TIFF* file) {
    TiffHeader header;
    header.width = NumberOf<std::uint32_t>(file, TIFFTAG_IMAGEWIDTH);
    header.height = NumberOf<std::uint32_t>(file, TIFFTAG_IMAGELENGTH);
    header.decodedBytes = DecodedBytes(file, header.width, header.height);
    header.hasResolutionX = HasNumber(file, TIFFTAG_XRESOLUTION);
    header.hasResolutionY = HasNumber(file, TIFFTAG_YRESOLUTION);
    return header;
}

}  // namespace

std::vector<TiffHeader> ReadTiffHeaders(std::span<const std::byte> content, int most) {
    ListenToLibraries();
    Source source{content};
    const TiffFile file = Open(source);
    std::vector<TiffHeader> headers;
    bool more = file != nullptr;
    while (more && static_cast<int>(headers.size()) < most) {
        if (HasPlanesOfBits(file.get()))
            return {};
        headers.push_back(HeaderOf(file.get()));
        more = TIFFReadDirectory(file.get()) != 0;
    }
    return headers;
}

int CountTiffPictures(std::span<const std::byte> content) {
    ListenToLibraries();
    Source source{content};
    const TiffFile file = Open(source);
    return file != nullptr ? static_cast<int>(TIFFNumberOfDirectories(file.get())) : 0;
}

}  // namespace tavrene::imaging
