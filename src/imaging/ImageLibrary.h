#pragma once

#include <FreeImage.h>

#include <memory>

namespace tavrene::imaging {

// The one list of the library's functions that this system calls.
#define TAVRENE_IMAGE_LIBRARY(USE) \
    USE(AcquireMemory)             \
    USE(Allocate)                  \
    USE(AppendPage)                \
    USE(Clone)                     \
    USE(CloseMemory)               \
    USE(CloseMultiBitmap)          \
    USE(Composite)                 \
    USE(ConvertTo24Bits)           \
    USE(ConvertTo32Bits)           \
    USE(ConvertTo8Bits)            \
    USE(ConvertToGreyscale)        \
    USE(CreateTag)                 \
    USE(DeleteTag)                 \
    USE(FlipHorizontal)            \
    USE(GetBPP)                    \
    USE(GetColorType)              \
    USE(GetDotsPerMeterX)          \
    USE(GetDotsPerMeterY)          \
    USE(GetFileTypeFromMemory)     \
    USE(GetHeight)                 \
    USE(GetImageType)              \
    USE(GetMetadata)               \
    USE(GetPageCount)              \
    USE(GetPalette)                \
    USE(GetPitch)                  \
    USE(GetScanLine)               \
    USE(GetTagLength)              \
    USE(GetTagValue)               \
    USE(GetVersion)                \
    USE(GetWidth)                  \
    USE(Invert)                    \
    USE(IsTransparent)             \
    USE(LoadFromMemory)            \
    USE(LoadMultiBitmapFromMemory) \
    USE(LockPage)                  \
    USE(OpenMemory)                \
    USE(OpenMultiBitmap)           \
    USE(Rescale)                   \
    USE(Rotate)                    \
    USE(SaveMultiBitmapToMemory)   \
    USE(SaveToMemory)              \
    USE(SetDotsPerMeterX)          \
    USE(SetDotsPerMeterY)          \
    USE(SetMetadata)               \
    USE(SetOutputMessage)          \
    USE(SetTagCount)               \
    USE(SetTagKey)                 \
    USE(SetTagLength)              \
    USE(SetTagType)                \
    USE(SetTagValue)               \
    USE(Threshold)                 \
    USE(UnlockPage)                \
    USE(Unload)

/// The library's functions without their prefix.
struct ImageLibrary {
// The name of a member cannot stand in parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses)
#define TAVRENE_MEMBER(name) decltype(&FreeImage_##name) name = nullptr;
    TAVRENE_IMAGE_LIBRARY(TAVRENE_MEMBER)
#undef TAVRENE_MEMBER
};

/// The name by which the system finds the library.
inline constexpr const char* kImageLibraryFile = "libfreeimage.so.3";

/// Loads the library and all functions of the list; nothing where the file or one of them is not there.
std::unique_ptr<ImageLibrary> LoadImageLibrary(const char* file);

/// Whether the library is there. It is loaded at the first question and stays.
bool HasImageLibrary();

/// The library, loaded on first use. Throws std::runtime_error where it is not there.
const ImageLibrary& Library();

}  // namespace tavrene::imaging
