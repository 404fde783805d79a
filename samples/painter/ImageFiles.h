#pragma once

#include <string>

#include "imaging/Bitmap.h"
#include "painter/Canvas.h"

namespace tavrene::samples {

/// Which bit value of a one-bit image means white.
enum class Photometric { MinIsWhite, MinIsBlack };

/// One bit a pixel with the canvas's resolution: pixels darker than `level` are black.
imaging::Bitmap ToBilevel(const Canvas& canvas, Photometric photometric = Photometric::MinIsWhite,
                          Shade level = 128);

/// Eight bits a pixel.
imaging::Bitmap ToGrey(const Canvas& canvas);

/// 24 bits a pixel from three canvases of the same size.
imaging::Bitmap ToColour(const Canvas& red, const Canvas& green, const Canvas& blue);

/// Writes an image file with its resolution: TIFF as Group 4 (one bit) or LZW, JPEG at a quality of 1 to 100;
/// the library writes no PCX. Throws std::runtime_error, naming the file, when that fails.
void SaveImage(const imaging::Bitmap& bitmap, imaging::ImageFormat format, const std::string& path,
               int quality = 75);

}  // namespace tavrene::samples
