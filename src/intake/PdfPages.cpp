#include "intake/PdfPages.h"

#include <poppler/ErrorCodes.h>
#include <poppler/PDFDoc.h>
#include <poppler/Page.h>
#include <poppler/SplashOutputDev.h>
#include <poppler/splash/SplashBitmap.h>

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "imaging/ImageHeader.h"
#include "imaging/ScanPicture.h"
#include "intake/PagePicture.h"
#include "intake/PdfErrors.h"
#include "intake/PictureStream.h"

namespace tavrene::intake {
namespace {

using imaging::Bitmap;

constexpr double kDrawnDpi = 300;

std::string_view TextOf(std::span<const std::byte> content) {
    return {reinterpret_cast<const char*>(content.data()), content.size()};
}

// Without its end a file was cut short. The library then makes do with what is there.
bool HasEnd(std::span<const std::byte> content) {
    constexpr std::size_t kRoomForEnd = 2048;
    const std::size_t first = content.size() - std::min(content.size(), kRoomForEnd);
    return TextOf(content.subspan(first)).find("%%EOF") != std::string_view::npos;
}

struct PageSize {
    double width = 0;  // points, as the page is shown
    double height = 0;
};

PageSize SizeOf(const Page& page) {
    const bool lies = page.getRotate() % 180 != 0;
    const double width = page.getCropWidth();
    const double height = page.getCropHeight();
    return lies ? PageSize{height, width} : PageSize{width, height};
}

// From lines of blue, green and red, the top one first.
Bitmap BitmapOf(SplashBitmap& drawn) {
    Bitmap picture = imaging::NewPicture(drawn.getWidth(), drawn.getHeight(), 24);
    for (int y = 0; y < drawn.getHeight(); ++y) {
        const unsigned char* const from =
            drawn.getDataPtr() + static_cast<std::ptrdiff_t>(y) * drawn.getRowSize();
        std::copy_n(from, 3 * drawn.getWidth(), picture.ScanLine(picture.Height() - 1 - y).begin());
    }
    return picture;
}

class PdfSource final : public PageSource {
  public:
    explicit PdfSource(app::Bytes content)
        : content_(std::move(content)),
          document_(new MemStream(reinterpret_cast<const char*>(content_.data()), 0,
                                  static_cast<Goffset>(content_.size()), Object(objNull))) {}

    PDFDoc& Document() { return document_; }
    bool IsWhole() const { return HasEnd(content_); }

    int PageCount() const override { return const_cast<PDFDoc&>(document_).getNumPages(); }

    std::variant<Bitmap, Reason> Page(int index) override {
        const int number = index + 1;
        const std::string name = "Page " + std::to_string(number);
        ::Page* const page = document_.getPage(number);
        if (page == nullptr || !page->isOk() || LacksContents(*page))
            return Reason{name + " is damaged."};
        ListenToPdfLibrary();
        try {
            std::optional<Bitmap> picture = PictureOf(number, SizeOf(*page));
            if (!picture && PdfFault().empty())
                picture = Drawn(number, SizeOf(*page));
            if (!PdfFault().empty())
                return Reason{name + " is damaged (" + PdfFault() + ")."};
            if (!picture)
                return Reason{name + " is too large."};
            return *std::move(picture);
        } catch (const PictureIsCut& cut) {
            return Reason{name + " is damaged (" + cut.what() + ")."};
        }
    }

  private:
    // Contents that are referred to and not there would be shown as an empty page.
    bool LacksContents(::Page& page) {
        const Object dictionary = document_.getXRef()->fetch(page.getRef());
        return !dictionary.isDict() ||
               (dictionary.dictLookupNF("Contents").isRef() && page.getContents().isNull());
    }

    void Show(int number, OutputDev& device, double dpi) {
        document_.displayPage(&device, number, dpi, dpi, 0, false, true, false);
    }

    std::optional<Bitmap> PictureOf(int number, PageSize size) {
        PagePicture watcher(size.width, size.height);
        Show(number, watcher, PagePicture::kDpi);
        return watcher.Take();
    }

    std::optional<Bitmap> Drawn(int number, PageSize size) {
        const auto pixels = [](double points) {
            return static_cast<std::int64_t>(
                std::ceil(std::clamp(points, 0.0, 1e6) * kDrawnDpi / PagePicture::kDpi));
        };
        if (imaging::IsTooLarge(pixels(size.width), pixels(size.height)))
            return std::nullopt;
        SplashColor paper = {255, 255, 255};
        SplashOutputDev device(splashModeBGR8, 4, false, paper);
        device.startDoc(&document_);
        Show(number, device, kDrawnDpi);
        Bitmap picture = BitmapOf(*device.getBitmap());
        imaging::SetResolution(picture, kDrawnDpi, kDrawnDpi);
        return picture;
    }

    app::Bytes content_;
    PDFDoc document_;
};

}  // namespace

std::variant<std::unique_ptr<PageSource>, Reason> OpenPdf(app::Bytes content) {
    ListenToPdfLibrary();
    auto source = std::make_unique<PdfSource>(std::move(content));
    PDFDoc& document = source->Document();
    if (!document.isOk() && document.getErrorCode() == errEncrypted)
        return Reason{"The file is encrypted and opens only with a password."};
    if (!document.isOk() || !source->IsWhole())
        return Reason{"The file is damaged."};
    if (source->PageCount() < 1)
        return Reason{"The file has no pages."};
    return source;
}

}  // namespace tavrene::intake
