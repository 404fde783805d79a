#include "intake/PageSource.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "imaging/ImageDecoder.h"
#include "imaging/ImageHeader.h"
#include "imaging/PageReader.h"
#include "imaging/ScanPicture.h"
#include "imaging/TiffPages.h"
#include "intake/PdfPages.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;
using imaging::ImageFormat;

Reason DamagedPage(int index) {
    return {"Page " + std::to_string(index + 1) + " is damaged or too large."};
}

class TiffSource final : public PageSource {
  public:
    explicit TiffSource(const app::Bytes& content) : reader_(content) {}

    int PageCount() const override { return reader_.PageCount(); }

    std::variant<Bitmap, Reason> Page(int index) override {
        Bitmap page = reader_.Page(index);
        if (!page)
            return DamagedPage(index);
        return page;
    }

  private:
    imaging::TiffReader reader_;
};

class PictureSource final : public PageSource {
  public:
    PictureSource(app::Bytes content, ImageFormat format) : content_(std::move(content)), format_(format) {}

    int PageCount() const override { return 1; }

    std::variant<Bitmap, Reason> Page(int index) override {
        Bitmap picture = imaging::DecodeImage(content_, format_);
        if (!picture)
            return DamagedPage(index);
        // Where the file carries no resolution the library makes one up.
        const imaging::ResolutionPresence carried = imaging::FindResolution(content_, format_);
        if (!carried.x || !carried.y)
            imaging::SetResolution(picture, 0, 0);
        return picture;
    }

  private:
    app::Bytes content_;
    ImageFormat format_;
};

}  // namespace

bool IsPdf(std::span<const std::byte> content) {
    constexpr std::size_t kRoomForStart = 1024;
    const std::string_view start(reinterpret_cast<const char*>(content.data()),
                                 std::min(content.size(), kRoomForStart));
    return start.find("%PDF-") != std::string_view::npos;
}

std::variant<std::unique_ptr<PageSource>, Reason> OpenPages(app::Bytes content) {
    if (imaging::ImageLibraryVersion().empty())
        return Reason{std::string(ReasonOf(imaging::PageError::NoLibrary)) + "."};
    if (IsPdf(content))
        return OpenPdf(std::move(content));
    const std::optional<ImageFormat> format = imaging::FormatOfContent(content);
    if (!format)
        return Reason{"This is no PDF and no picture that can be read."};
    if (*format != ImageFormat::Tiff)
        return std::make_unique<PictureSource>(std::move(content), *format);
    auto tiff = std::make_unique<TiffSource>(content);
    if (tiff->PageCount() == 0)
        return Reason{"The file is damaged."};
    return tiff;
}

int CountPages(app::Bytes content) {
    const auto pages = OpenPages(std::move(content));
    const auto* const source = std::get_if<std::unique_ptr<PageSource>>(&pages);
    return source == nullptr ? 0 : (*source)->PageCount();
}

}  // namespace tavrene::intake
