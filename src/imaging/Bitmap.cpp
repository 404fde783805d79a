#include "imaging/Bitmap.h"

#include <cmath>
#include <stdexcept>

#include "imaging/ImageLibrary.h"

namespace tavrene::imaging {

std::string ImageLibraryVersion() {
    // The library puts its answer into one buffer, whoever asks.
    static const std::string version = HasImageLibrary() ? Library().GetVersion() : "";
    return version;
}

Bitmap Bitmap::BilevelPage(int width, int height, int dpi) {
    Bitmap page(Library().Allocate(width, height, 1, 0, 0, 0));
    if (!page)
        throw std::runtime_error("There is not enough memory for a page image.");
    MakeInkDark(page);
    const auto dotsPerMeter = static_cast<unsigned>(std::lround(dpi / 0.0254));
    Library().SetDotsPerMeterX(page.Get(), dotsPerMeter);
    Library().SetDotsPerMeterY(page.Get(), dotsPerMeter);
    return page;
}

int Bitmap::Width() const {
    return static_cast<int>(Library().GetWidth(handle_.get()));
}
int Bitmap::Height() const {
    return static_cast<int>(Library().GetHeight(handle_.get()));
}
int Bitmap::Pitch() const {
    return static_cast<int>(Library().GetPitch(handle_.get()));
}
int Bitmap::BitsPerPixel() const {
    return static_cast<int>(Library().GetBPP(handle_.get()));
}
bool Bitmap::IsStandardBitmap() const {
    return handle_ != nullptr && Library().GetImageType(handle_.get()) == FIT_BITMAP;
}

std::span<const std::uint8_t> Bitmap::ScanLine(int row) const {
    return {Library().GetScanLine(handle_.get(), row), static_cast<std::size_t>(Pitch())};
}

std::span<std::uint8_t> Bitmap::ScanLine(int row) {
    return {Library().GetScanLine(handle_.get(), row), static_cast<std::size_t>(Pitch())};
}

void MakeInkDark(Bitmap& bitmap) {
    RGBQUAD* const palette = Library().GetPalette(bitmap.Get());
    palette[0] = {255, 255, 255, 0};
    palette[1] = {0, 0, 0, 0};
}

}  // namespace tavrene::imaging
