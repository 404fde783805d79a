#include "imaging/Bitmap.h"

#include <FreeImage.h>

#include <cmath>
#include <stdexcept>
#include <utility>

#include "imaging/LibraryHandles.h"
#include "imaging/TiffMessages.h"

namespace tavrene::imaging {
std::string ImageLibraryVersion() {
    const char* const version = FreeImage_GetVersion();
    return version == nullptr ? std::string() : std::string(version);
}

Bitmap& Bitmap::operator=(Bitmap&& other) noexcept {
    if (this != &other) {
        FreeImage_Unload(handle_);
        handle_ = other.Release();
    }
    return *this;
}

Bitmap::~Bitmap() {
    FreeImage_Unload(handle_);
}

FIBITMAP* Bitmap::Release() {
    return std::exchange(handle_, nullptr);
}

Bitmap Bitmap::BilevelPage(int width, int height, int dpi) {
    Bitmap page(FreeImage_Allocate(width, height, 1));
    if (!page)
        throw std::runtime_error("There is not enough memory for a page image.");
    MakeInkDark(page);
    const auto dotsPerMeter = static_cast<unsigned>(std::lround(dpi / 0.0254));
    FreeImage_SetDotsPerMeterX(page.Get(), dotsPerMeter);
    FreeImage_SetDotsPerMeterY(page.Get(), dotsPerMeter);
    return page;
}

int Bitmap::Width() const {
    return static_cast<int>(FreeImage_GetWidth(handle_));
}
int Bitmap::Height() const {
    return static_cast<int>(FreeImage_GetHeight(handle_));
}
int Bitmap::Pitch() const {
    return static_cast<int>(FreeImage_GetPitch(handle_));
}
int Bitmap::BitsPerPixel() const {
    return static_cast<int>(FreeImage_GetBPP(handle_));
}
bool Bitmap::IsStandardBitmap() const {
    return handle_ != nullptr && FreeImage_GetImageType(handle_) == FIT_BITMAP;
}

std::span<const std::uint8_t> Bitmap::ScanLine(int row) const {
    return {FreeImage_GetScanLine(handle_, row), static_cast<std::size_t>(Pitch())};
}

std::span<std::uint8_t> Bitmap::ScanLine(int row) {
    return {FreeImage_GetScanLine(handle_, row), static_cast<std::size_t>(Pitch())};
}

void MakeInkDark(Bitmap& bitmap) {
    RGBQUAD* const palette = FreeImage_GetPalette(bitmap.Get());
    palette[0] = {255, 255, 255, 0};
    palette[1] = {0, 0, 0, 0};
}

Bitmap DecodeImage(std::span<const std::byte> content, ImageFormat format, Decode extent) {
    ListenToTiffLibrary();
    const MemoryHandle memory = MemoryOver(content);
    const int flags = extent == Decode::HeaderOnly ? FIF_LOAD_NOPIXELS : 0;
    Bitmap bitmap(FreeImage_LoadFromMemory(static_cast<FREE_IMAGE_FORMAT>(format), memory.get(), flags));
    return TiffWasDamaged() ? Bitmap() : std::move(bitmap);
}

app::Bytes EncodeGroup4Tiff(const Bitmap& bitmap) {
    ListenToTiffLibrary();
    const MemoryHandle memory = NewMemory();
    if (!FreeImage_SaveToMemory(FIF_TIFF, bitmap.Get(), memory.get(), TIFF_CCITTFAX4))
        throw std::runtime_error("The image library cannot write this page as TIFF.");
    return BytesOf(memory);
}

}  // namespace tavrene::imaging
