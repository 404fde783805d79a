#include "imaging/ImageHeader.h"

#include <cstddef>
#include <cstdint>
#include <span>

/// Each input is read as every file type, so that plain image files serve as a corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tavrene::imaging::ImageFormat;
    const auto content = std::as_bytes(std::span(data, size));
    for (const ImageFormat format : {ImageFormat::Tiff, ImageFormat::Jpeg, ImageFormat::Png, ImageFormat::Gif,
                                     ImageFormat::Bmp, ImageFormat::Pcx}) {
        tavrene::imaging::FindResolution(content, format);
        tavrene::imaging::IsTooLarge(content, format);
    }
    return 0;
}
