#pragma once

#include <string>

#include "boxes/BoxPages.h"

namespace tavrene::samples {

/// A page in colours.
struct ColourPicture {
    Canvas Red;
    Canvas Green;
    Canvas Blue;
};

/// The page in grey with the boxes drawn over it: right ones green, missed ones blue, false ones red.
ColourPicture PictureOfScore(const BoxPage& page);

/// The page as it is after the first `steps` steps, in grey, with the segments found so far: horizontal ones
/// red, vertical ones blue.
ColourPicture PictureOfSegments(const BoxPage& page, int steps);

/// Writes a PNG file; throws std::runtime_error, naming the file, when that fails.
void SavePicture(const ColourPicture& picture, const std::string& path);

}  // namespace tavrene::samples
