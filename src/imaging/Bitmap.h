#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "imaging/LibraryHandles.h"

namespace tavrene::imaging {

/// File types by the image library's format codes.
enum class ImageFormat {
    Bmp = 0,
    Jpeg = 2,
    Pcx = 10,
    Png = 13,
    Tiff = 18,
    Gif = 25,
    Jpeg2000Stream = 30,
    Jpeg2000 = 31,
    Webp = 35
};

/// Every one of them.
inline constexpr std::array kImageFormats = {
    ImageFormat::Bmp, ImageFormat::Jpeg,           ImageFormat::Pcx,      ImageFormat::Png, ImageFormat::Tiff,
    ImageFormat::Gif, ImageFormat::Jpeg2000Stream, ImageFormat::Jpeg2000, ImageFormat::Webp};

/// The image library's version text; empty when there is no library.
std::string ImageLibraryVersion();

/// Owns one bitmap of the image library. May be empty ("no bitmap").
class Bitmap {
  public:
    Bitmap() = default;
    explicit Bitmap(FIBITMAP* handle) : handle_(handle) {}

    /// A white one-bit page of the given size and resolution (dots per inch, 0 for none); bit 1 is black.
    static Bitmap BilevelPage(int width, int height, int dpi);

    explicit operator bool() const { return handle_ != nullptr; }
    FIBITMAP* Get() const { return handle_.get(); }

    int Width() const;
    int Height() const;
    int Pitch() const;  ///< Bytes of a scan line, padding included.
    int BitsPerPixel() const;
    bool IsStandardBitmap() const;  ///< False also for no bitmap.

    /// Scan line `row`, row 0 at the bottom of the picture.
    std::span<const std::uint8_t> ScanLine(int row) const;
    std::span<std::uint8_t> ScanLine(int row);

  private:
    BitmapHandle handle_;
};

/// Makes bit 1 of a one-bit image black and bit 0 white, by its palette; the bits stay.
void MakeInkDark(Bitmap& bitmap);

}  // namespace tavrene::imaging
