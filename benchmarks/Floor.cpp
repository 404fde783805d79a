#include "Floor.h"

#include <FreeImage.h>

#include <stdexcept>

#include "app/TemporaryFolder.h"

namespace tavrene::bench {

void LoadAndSave(const std::string& page, const std::string& copy) {
    FIBITMAP* const bitmap = FreeImage_Load(FIF_TIFF, page.c_str(), 0);
    const bool saved = bitmap != nullptr && FreeImage_Save(FIF_TIFF, bitmap, copy.c_str(), TIFF_CCITTFAX4);
    FreeImage_Unload(bitmap);
    if (!saved)
        throw std::runtime_error("the page cannot be loaded and saved: " + page);
}

const std::string& ScratchFolder() {
    static const app::TemporaryFolder scratch("tavrene-benchmark");
    return scratch.Path();
}

}  // namespace tavrene::bench
