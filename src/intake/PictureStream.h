#pragma once

#include <stdexcept>

#include "imaging/Bitmap.h"

class GfxImageColorMap;
class Stream;

namespace tavrene::intake {

/// A picture whose stream ends before it does. What is missing must not pass for white paper.
class PictureIsCut : public std::runtime_error {
  public:
    PictureIsCut() : std::runtime_error("the picture is not complete") {}
};

/// The picture of a PDF stream, pixel for pixel: one bit where its two colours are black and white, 8 bits of
/// grey where it has one channel of greys, else 24 bits. Throws `PictureIsCut`, or std::runtime_error when
/// there is no memory.
imaging::Bitmap DecodePicture(Stream& stream, int width, int height, GfxImageColorMap& colors);

/// A stencil of black ink: bit 0 is ink, or bit 1 where `invert` is set.
imaging::Bitmap DecodeStencil(Stream& stream, int width, int height, bool invert);

}  // namespace tavrene::intake
