#include "imaging/TiffPages.h"

#include <FreeImage.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "imaging/ImageHeader.h"
#include "imaging/TiffMessages.h"

namespace tavrene::imaging {
namespace {

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

DocumentHandle OpenTiff(const MemoryHandle& memory, int flags) {
    if (FreeImage_GetFileTypeFromMemory(memory.get(), 0) != FIF_TIFF)
        return nullptr;
    return DocumentHandle(FreeImage_LoadMultiBitmapFromMemory(FIF_TIFF, memory.get(), flags));
}

constexpr BYTE kPaper = 0xE0;
constexpr BYTE kLine = 0x90;

}  // namespace

TiffReader::TiffReader(std::span<const std::byte> content)
    : memory_(MemoryOver(content)), headerMemory_(MemoryOver(content)) {
    ListenToTiffLibrary();
    document_ = OpenTiff(memory_, 0);
    headers_ = OpenTiff(headerMemory_, FIF_LOAD_NOPIXELS);
    // The library counts only as far as the file is sound.
    if (!headers_ || TiffWasDamaged())
        document_.reset();
}

int TiffReader::PageCount() const {
    return document_ ? FreeImage_GetPageCount(document_.get()) : 0;
}

Bitmap TiffReader::Page(int index) const {
    const auto copyOfPage = [index](const DocumentHandle& document) {
        FIBITMAP* const locked = FreeImage_LockPage(document.get(), index);
        Bitmap page(locked == nullptr ? nullptr : FreeImage_Clone(locked));
        FreeImage_UnlockPage(document.get(), locked, FALSE);
        return page;
    };
    ListenToTiffLibrary();
    const Bitmap header = copyOfPage(headers_);
    if (!header || IsTooLarge(header.Width(), header.Height()))
        return {};
    Bitmap page = copyOfPage(document_);
    return TiffWasDamaged() ? Bitmap() : std::move(page);
}

std::vector<TiffPage> DecodeTiffPages(std::span<const std::byte> content) {
    const TiffReader reader(content);
    std::vector<TiffPage> pages;
    for (int index = 0; index < reader.PageCount(); ++index) {
        Bitmap picture = reader.Page(index);
        if (!picture)
            return {};
        std::string label = LabelOf(picture);
        pages.push_back({std::move(picture), std::move(label)});
    }
    return pages;
}

app::Bytes EncodeTiffPages(std::span<const TiffPage> pages) {
    if (pages.empty())
        return {};
    ListenToTiffLibrary();
    // A document without a name lives in memory and is never saved by being closed.
    const DocumentHandle document(FreeImage_OpenMultiBitmap(FIF_TIFF, "", TRUE, FALSE, TRUE, 0));
    if (!document)
        throw std::runtime_error("The image library cannot make a TIFF of several pages.");
    for (const TiffPage& page : pages) {
        SetLabel(page.picture, page.label);
        FreeImage_AppendPage(document.get(), page.picture.Get());
    }
    const MemoryHandle memory = NewMemory();
    if (FreeImage_GetPageCount(document.get()) != static_cast<int>(pages.size()) ||
        !FreeImage_SaveMultiBitmapToMemory(FIF_TIFF, document.get(), memory.get(), 0))
        throw std::runtime_error("The image library cannot write a TIFF of several pages.");
    return BytesOf(memory);
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
