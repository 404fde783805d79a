#pragma once

#include <cstddef>
#include <span>

namespace tavrene::imaging {

/// What the segments of a JPEG file say.
struct JpegOutline {
    bool isMeasured = false;   ///< A resolution: its JFIF segment measures dots an inch or a centimetre.
    bool hasAllScans = false;  ///< Every component has its scans, in a progressive file down to the last bit.
    bool hasEndMarker = false;
};

/// Never reads outside `content`, whatever it holds.
JpegOutline OutlineOfJpeg(std::span<const std::byte> content);

}  // namespace tavrene::imaging
