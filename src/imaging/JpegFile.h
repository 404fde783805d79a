#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tavrene::imaging {

/// What the segments of a JPEG file say.
struct JpegOutline {
    bool isMeasured = false;   ///< A resolution: its JFIF segment measures dots an inch or a centimetre.
    bool hasAllScans = false;  ///< Every component has its scans, in a progressive file down to the last bit.
    bool hasEndMarker = false;
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t components = 0;

    /// What the decoder holds beside the picture until the last scan has come: all coefficients of a picture
    /// that is sent in several scans.
    std::int64_t heldBytes = 0;
};

/// Never reads outside `content`, whatever it holds.
JpegOutline OutlineOfJpeg(std::span<const std::byte> content);

}  // namespace tavrene::imaging
