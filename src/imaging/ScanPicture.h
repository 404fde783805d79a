#pragma once

#include <string>

#include "app/Files.h"
#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// A blank picture: 1 bit a pixel (all white, bit 1 is black), 8 bits of grey or 24 bits of blue, green and
/// red. Throws std::runtime_error when there is no memory for it.
Bitmap NewPicture(int width, int height, int bitsPerPixel);

/// Dots per inch.
void SetResolution(Bitmap& picture, double x, double y);

/// How a picture has to be moved to stand upright: first mirrored left to right, then turned clockwise.
struct Turn {
    bool mirrored = false;
    int quarters = 0;  ///< 0 to 3.
};

/// The picture mirrored and turned without loss; no resolution is turned with it.
Bitmap Turned(Bitmap picture, Turn turn);

/// The same picture in the fewest bits that show each pixel as it is: one bit where all are black or white, 8
/// where all are grey.
Bitmap InFewestBits(Bitmap picture);

/// An image file of a page: Group 4 TIFF where it is black and white, else PNG.
struct ScanFile {
    app::Bytes content;
    std::string extension;  ///< With its dot.
};

/// Throws std::runtime_error when the library refuses, as with pixels of more than 16 bits a channel.
ScanFile EncodeScan(Bitmap picture);

}  // namespace tavrene::imaging
