#include "imaging/TiffPages.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

/// Pages of foreign bytes are read or there are none; what was read can be written, and reads as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tavrene::imaging::TiffPage;
    const std::vector<TiffPage> pages =
        tavrene::imaging::DecodeTiffPages(std::as_bytes(std::span(data, size)));
    if (pages.empty())
        return 0;
    const std::vector<TiffPage> again =
        tavrene::imaging::DecodeTiffPages(tavrene::imaging::EncodeTiffPages(pages));
    if (again.size() != pages.size())
        std::abort();
    for (std::size_t k = 0; k < pages.size(); ++k) {
        if (again[k].label != pages[k].label || again[k].picture.Width() != pages[k].picture.Width() ||
            again[k].picture.Height() != pages[k].picture.Height())
            std::abort();
    }
    return 0;
}
