#include "imaging/PageReader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <variant>

/// Each input is read as every file type, so that plain image files serve as a corpus. What is a page keeps
/// its size through both of its forms.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavrene::imaging;
    const auto content = std::as_bytes(std::span(data, size));
    for (const ImageFormat format : {ImageFormat::Tiff, ImageFormat::Jpeg, ImageFormat::Png, ImageFormat::Gif,
                                     ImageFormat::Bmp, ImageFormat::Pcx}) {
        const std::variant<Page, PageError> read = PageOf(content, format);
        const Page* const page = std::get_if<Page>(&read);
        if (page != nullptr &&
            (page->grid.Width() != page->bitmap.Width() || page->grid.Rows() != page->bitmap.Height()))
            std::abort();
    }
    DecodeAnyImage(content);
    return 0;
}
