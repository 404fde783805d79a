#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "app/Files.h"

struct FIBITMAP;

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

/// The image library's version text; empty when the library cannot be called.
std::string ImageLibraryVersion();

/// Owns one bitmap of the image library. May be empty ("no bitmap").
class Bitmap {
  public:
    Bitmap() = default;
    explicit Bitmap(FIBITMAP* handle) : handle_(handle) {}
    Bitmap(Bitmap&& other) noexcept : handle_(other.Release()) {}
    Bitmap& operator=(Bitmap&& other) noexcept;
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;
    ~Bitmap();

    /// A white one-bit page of the given size and resolution (dots per inch, 0 for none); bit 1 is black.
    static Bitmap BilevelPage(int width, int height, int dpi);

    explicit operator bool() const { return handle_ != nullptr; }
    FIBITMAP* Get() const { return handle_; }

    int Width() const;
    int Height() const;
    int Pitch() const;  ///< Bytes of a scan line, padding included.
    int BitsPerPixel() const;
    bool IsStandardBitmap() const;  ///< False also for no bitmap.

    /// Scan line `row`, row 0 at the bottom of the picture.
    std::span<const std::uint8_t> ScanLine(int row) const;
    std::span<std::uint8_t> ScanLine(int row);

  private:
    FIBITMAP* Release();

    FIBITMAP* handle_ = nullptr;
};

/// What of an image is decoded. With the header alone the sizes are known and no pixel is unpacked; formats
/// for which the library cannot do that are decoded whole.
enum class Decode { Whole, HeaderOnly };

/// Decodes an image; no bitmap when the content is not of that format or is damaged. Prints nothing.
Bitmap DecodeImage(std::span<const std::byte> content, ImageFormat format, Decode extent = Decode::Whole);

/// Makes bit 1 of a one-bit image black and bit 0 white, by its palette; the bits stay.
void MakeInkDark(Bitmap& bitmap);

/// Encodes a one-bit image as TIFF with CCITT Group 4 compression; throws std::runtime_error when the library
/// refuses.
app::Bytes EncodeGroup4Tiff(const Bitmap& bitmap);

}  // namespace tavrene::imaging
