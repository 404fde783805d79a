#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace tavrene::imaging {

/// What a TIFF says of one of its pictures.
struct TiffHeader {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t decodedBytes = 0;  ///< At least what decoding it takes.
    bool hasResolutionX = false;
    bool hasResolutionY = false;
};

/// The headers of the first `most` pictures; fewer where the file has fewer, none where it is no TIFF or a
/// picture is of a kind that the image library cannot take. Never reads outside `content`.
std::vector<TiffHeader> ReadTiffHeaders(std::span<const std::byte> content, int most);

/// How many pictures a TIFF says that it holds; 0 for what is none.
int CountTiffPictures(std::span<const std::byte> content);

}  // namespace tavrene::imaging
