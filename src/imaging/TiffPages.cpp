#include "imaging/TiffPages.h"

#include <FreeImage.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "imaging/TiffMessages.h"

namespace tavrene::imaging {
namespace {

struct CloseDocument {
    void operator()(FIMULTIBITMAP* document) const { FreeImage_CloseMultiBitmap(document, 0); }
};
using Document = std::unique_ptr<FIMULTIBITMAP, CloseDocument>;

struct CloseMemory {
    void operator()(FIMEMORY* memory) const { FreeImage_CloseMemory(memory); }
};
using Memory = std::unique_ptr<FIMEMORY, CloseMemory>;

// Of the text tags only this one comes back from a page of a multi-page file.
constexpr const char* kLabelTag = "XMLPacket";

std::string LabelOf(const Bitmap& picture) {
    FITAG* tag = nullptr;
    if (!FreeImage_GetMetadata(FIMD_XMP, picture.Get(), kLabelTag, &tag))
        return {};
    const std::string label(static_cast<const char*>(FreeImage_GetTagValue(tag)),
                            FreeImage_GetTagLength(tag));
    return label.substr(0, label.find('\0'));
}

void SetLabel(const Bitmap& picture, const std::string& label) {
    FITAG* const tag = FreeImage_CreateTag();
    const auto length = static_cast<DWORD>(label.size() + 1);
    FreeImage_SetTagKey(tag, kLabelTag);
    FreeImage_SetTagType(tag, FIDT_ASCII);
    FreeImage_SetTagCount(tag, length);
    FreeImage_SetTagLength(tag, length);
    FreeImage_SetTagValue(tag, label.c_str());
    FreeImage_SetMetadata(FIMD_XMP, picture.Get(), kLabelTag, tag);
    FreeImage_DeleteTag(tag);
}

TiffPage CopyOfPage(FIMULTIBITMAP* document, int index) {
    FIBITMAP* const locked = FreeImage_LockPage(document, index);
    if (locked == nullptr)
        return {};
    TiffPage page{Bitmap(FreeImage_Clone(locked)), {}};
    FreeImage_UnlockPage(document, locked, FALSE);
    page.label = LabelOf(page.picture);
    return page;
}

constexpr BYTE kPaper = 0xE0;
constexpr BYTE kLine = 0x90;

}  // namespace

std::vector<TiffPage> DecodeTiffPages(std::span<const std::byte> content) {
    ListenToTiffLibrary();
    // The library does not write to the memory that it reads from.
    auto* const bytes = const_cast<BYTE*>(reinterpret_cast<const BYTE*>(content.data()));
    const Memory memory(FreeImage_OpenMemory(bytes, static_cast<DWORD>(content.size())));
    if (FreeImage_GetFileTypeFromMemory(memory.get(), 0) != FIF_TIFF)
        return {};
    const Document document(FreeImage_LoadMultiBitmapFromMemory(FIF_TIFF, memory.get(), 0));
    if (!document)
        return {};
    std::vector<TiffPage> pages;
    const int count = FreeImage_GetPageCount(document.get());
    for (int index = 0; index < count; ++index) {
        pages.push_back(CopyOfPage(document.get(), index));
        if (!pages.back().picture || TiffWasDamaged())
            return {};
    }
    return pages;
}

app::Bytes EncodeTiffPages(std::span<const TiffPage> pages) {
    if (pages.empty())
        return {};
    ListenToTiffLibrary();
    // A document without a name lives in memory and is never saved by being closed.
    const Document document(FreeImage_OpenMultiBitmap(FIF_TIFF, "", TRUE, FALSE, TRUE, 0));
    if (!document)
        throw std::runtime_error("The image library cannot make a TIFF of several pages.");
    for (const TiffPage& page : pages) {
        SetLabel(page.picture, page.label);
        FreeImage_AppendPage(document.get(), page.picture.Get());
    }
    const Memory memory(FreeImage_OpenMemory());
    BYTE* data = nullptr;
    DWORD size = 0;
    if (FreeImage_GetPageCount(document.get()) != static_cast<int>(pages.size()) ||
        !FreeImage_SaveMultiBitmapToMemory(FIF_TIFF, document.get(), memory.get(), 0) ||
        !FreeImage_AcquireMemory(memory.get(), &data, &size))
        throw std::runtime_error("The image library cannot write a TIFF of several pages.");
    const auto bytes = std::as_bytes(std::span(data, size));
    return {bytes.begin(), bytes.end()};
}

Bitmap ReducedPicture(const Bitmap& picture, int width, int maxHeight) {
    const Bitmap grey(FreeImage_ConvertToGreyscale(picture.Get()));
    const double scale = static_cast<double>(width) / picture.Width();
    const int height = std::clamp(static_cast<int>(picture.Height() * scale), 1, maxHeight);
    Bitmap reduced(grey ? FreeImage_Rescale(grey.Get(), width, height, FILTER_BOX) : nullptr);
    if (!reduced)
        throw std::runtime_error("There is not enough memory for a reduced picture.");
    return reduced;
}

Bitmap PlaceholderPicture(int width, int height) {
    Bitmap sheet(FreeImage_Allocate(width, height, 8));
    if (!sheet)
        throw std::runtime_error("There is not enough memory for a picture.");
    for (int row = 0; row < height; ++row) {
        const std::span<std::uint8_t> line = sheet.ScanLine(row);
        std::fill(line.begin(), line.end(), kPaper);
        const auto column = static_cast<std::size_t>(row * width / height);
        line[column] = kLine;
        line[static_cast<std::size_t>(width) - 1 - column] = kLine;
    }
    return sheet;
}

}  // namespace tavrene::imaging
