#include "imaging/TiffPages.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

#include "imaging/ImageHeader.h"
#include "imaging/ImageLibrary.h"
#include "imaging/LibraryMessages.h"
#include "imaging/TiffMetadata.h"

namespace tavrene::imaging {
namespace {

// Of the text tags only this one comes back from a page of a multi-page file.
constexpr const char* kLabelTag = "XMLPacket";

std::string LabelOf(const Bitmap& picture) {
    FITAG* tag = nullptr;
    if (!Library().GetMetadata(FIMD_XMP, picture.Get(), kLabelTag, &tag))
        return {};
    const std::string label(static_cast<const char*>(Library().GetTagValue(tag)),
                            Library().GetTagLength(tag));
    return label.substr(0, label.find('\0'));
}

void SetLabel(const Bitmap& picture, const std::string& label) {
    const TagHandle tag(Library().CreateTag());
    const auto length = static_cast<DWORD>(label.size() + 1);
    Library().SetTagKey(tag.get(), kLabelTag);
    Library().SetTagType(tag.get(), FIDT_ASCII);
    Library().SetTagCount(tag.get(), length);
    Library().SetTagLength(tag.get(), length);
    Library().SetTagValue(tag.get(), label.c_str());
    Library().SetMetadata(FIMD_XMP, picture.Get(), kLabelTag, tag.get());
}

constexpr BYTE kPaper = 0xE0;
constexpr BYTE kLine = 0x90;

}  // namespace

TiffReader::TiffReader(std::span<const std::byte> content)
    : headers_(ReadTiffHeaders(content, std::numeric_limits<int>::max())) {
    // The headers end where the list of pages is unsound.
    if (headers_.empty() || DamageWasMet() || !HasImageLibrary())
        return;
    content_ = WithoutMetadata(content);
    memory_ = MemoryOver(content_);
    document_.reset(Library().LoadMultiBitmapFromMemory(FIF_TIFF, memory_.get(), 0));
}

int TiffReader::PageCount() const {
    return document_ ? Library().GetPageCount(document_.get()) : 0;
}

Bitmap TiffReader::Page(int index) const {
    const auto number = static_cast<std::size_t>(index);
    if (number >= headers_.size() || !MayBeDecoded(headers_[number]))
        return {};
    ListenToLibraries();
    FIBITMAP* const locked = Library().LockPage(document_.get(), index);
    if (locked == nullptr)
        return {};
    Bitmap page(Library().Clone(locked));
    Library().UnlockPage(document_.get(), locked, FALSE);
    return DamageWasMet() ? Bitmap() : std::move(page);
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
    ListenToLibraries();
    // A document without a name lives in memory and is never saved by being closed.
    const DocumentHandle document(Library().OpenMultiBitmap(FIF_TIFF, "", TRUE, FALSE, TRUE, 0));
    if (!document)
        throw std::runtime_error("The image library cannot make a TIFF of several pages.");
    for (const TiffPage& page : pages) {
        SetLabel(page.picture, page.label);
        Library().AppendPage(document.get(), page.picture.Get());
    }
    const MemoryHandle memory = NewMemory();
    if (Library().GetPageCount(document.get()) != static_cast<int>(pages.size()) ||
        !Library().SaveMultiBitmapToMemory(FIF_TIFF, document.get(), memory.get(), 0))
        throw std::runtime_error("The image library cannot write a TIFF of several pages.");
    return BytesOf(memory);
}

Bitmap ReducedPicture(const Bitmap& picture, int width, int maxHeight) {
    const Bitmap grey(Library().ConvertToGreyscale(picture.Get()));
    const double scale = static_cast<double>(width) / picture.Width();
    const int height = std::clamp(static_cast<int>(picture.Height() * scale), 1, maxHeight);
    Bitmap reduced(grey ? Library().Rescale(grey.Get(), width, height, FILTER_BOX) : nullptr);
    if (!reduced)
        throw std::runtime_error("There is not enough memory for a reduced picture.");
    return reduced;
}

Bitmap PlaceholderPicture(int width, int height) {
    if (!HasImageLibrary())
        return {};
    Bitmap sheet(Library().Allocate(width, height, 8, 0, 0, 0));
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
