#include "painter/PdfFile.h"

#include <FreeImage.h>

#include <stdexcept>
#include <vector>

#include "imaging/ByteReader.h"
#include "imaging/ImageDecoder.h"

namespace tavrene::samples {
namespace {

using imaging::ByteReader;

// The only strip of a TIFF.
std::string StripOf(const app::Bytes& tiff) {
    constexpr std::uint64_t kStripOffsets = 273;
    constexpr std::uint64_t kStripByteCounts = 279;
    const ByteReader reader(tiff, ByteReader::Order::LittleEndian);
    const std::uint64_t directory = reader.Number(4, 4);
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
    for (std::uint64_t k = 0; k < reader.Number(directory, 2); ++k) {
        const std::uint64_t entry = directory + 2 + 12 * k;
        const std::uint64_t value = reader.Number(entry + 8, reader.Number(entry + 2, 2) == 3 ? 2 : 4);
        offset = reader.Number(entry, 2) == kStripOffsets ? value : offset;
        length = reader.Number(entry, 2) == kStripByteCounts ? value : length;
        if (reader.Number(entry, 2) == kStripOffsets && reader.Number(entry + 4, 4) != 1)
            throw std::runtime_error("the page has more than one strip");
    }
    return {reinterpret_cast<const char*>(tiff.data()) + offset, length};
}

std::string StreamOf(const std::string& entries, const std::string& data) {
    return "<<" + entries + "/Length " + std::to_string(data.size()) + ">>stream\n" + data + "\nendstream";
}

class Document {
  public:
    // Gives the object's number.
    std::size_t Add(const std::string& object) {
        offsets_.push_back(text_.size());
        text_ += std::to_string(offsets_.size()) + " 0 obj\n" + object + "\nendobj\n";
        return offsets_.size();
    }

    std::string Closed(const std::string& trailer) {
        const std::size_t table = text_.size();
        const std::string size = std::to_string(offsets_.size() + 1);
        text_ += "xref\n0 " + size + "\n0000000000 65535 f \n";
        for (const std::size_t offset : offsets_) {
            const std::string number = std::to_string(offset);
            text_ += std::string(10 - number.size(), '0') + number + " 00000 n \n";
        }
        text_ += "trailer<</Size " + size + trailer + ">>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
        return text_;
    }

  private:
    std::string text_ = "%PDF-1.5\n";
    std::vector<std::size_t> offsets_;
};

std::string Reference(std::size_t object) {
    return std::to_string(object) + " 0 R";
}

}  // namespace

std::string WholePage(const PdfPage& page) {
    return std::to_string(page.width) + " 0 0 " + std::to_string(page.height) + " 0 0 cm /Im0 Do\n";
}

PdfPage ScannedPage(const imaging::Bitmap& picture) {
    const double perPoint = FreeImage_GetDotsPerMeterX(picture.Get()) * 0.0254 / 72;
    const std::string columns = std::to_string(picture.Width());
    const std::string rows = std::to_string(picture.Height());
    PdfPage page;
    page.width = picture.Width() / perPoint;
    page.height = picture.Height() / perPoint;
    page.contents = WholePage(page);
    page.picture = "/Width " + columns + "/Height " + rows +
                   "/BitsPerComponent 1/ColorSpace/DeviceGray/Filter/CCITTFaxDecode"
                   "/DecodeParms<</K -1/Columns " +
                   columns + "/Rows " + rows + ">>";
    page.data = StripOf(imaging::EncodeGroup4Tiff(picture));
    return page;
}

std::string PdfOf(std::span<const PdfPage> pages, const std::string& trailer) {
    Document document;
    // Catalogue, tree and font are objects 1 to 3; each page is made of three after them.
    std::string kids;
    for (std::size_t k = 0; k < pages.size(); ++k)
        kids += Reference(6 + 3 * k) + " ";
    document.Add("<</Type/Catalog/Pages 2 0 R>>");
    document.Add("<</Type/Pages/Kids[" + kids + "]/Count " + std::to_string(pages.size()) + ">>");
    document.Add("<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>");
    for (const PdfPage& page : pages) {
        const std::size_t picture =
            document.Add(StreamOf("/Type/XObject/Subtype/Image" + page.picture, page.data));
        const std::size_t contents = document.Add(StreamOf("", page.contents));
        document.Add("<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + std::to_string(page.width) + " " +
                     std::to_string(page.height) + "]/Resources<</Font<</F0 3 0 R>>/XObject<</Im0 " +
                     Reference(picture) + ">>>>/Contents " + Reference(contents) + page.entries + ">>");
    }
    return document.Closed("/Root 1 0 R" + trailer);
}

}  // namespace tavrene::samples
