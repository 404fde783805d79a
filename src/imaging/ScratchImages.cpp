#include "imaging/ScratchImages.h"

#include <exception>
#include <utility>

namespace tavrene::imaging {
namespace {

constexpr const char* kShown = "temp2.tif";
constexpr const char* kConverted = "temp.tif";

// Encoding and writing fail in one way: by saying why.
template <typename Make>
ScratchCopy Attempt(Make make) {
    try {
        return make();
    } catch (const std::exception& error) {
        return {{}, error.what()};
    }
}

}  // namespace

ScratchImages::ScratchImages(app::Files& files, std::string tempFolder)
    : files_(files), tempFolder_(std::move(tempFolder)) {}

ScratchCopy ScratchImages::WritePage(const Page& page) {
    return Attempt([&] {
        const app::Bytes content = EncodeGroup4Tiff(page.bitmap);
        ScratchCopy shown = Write(kShown, content);
        if (page.format == ImageFormat::Tiff && page.inverted)
            shown.failure = Attempt([&] { return Write(kConverted, content); }).failure;
        return shown;
    });
}

ScratchCopy ScratchImages::WriteConverted(const Page& page) {
    return Attempt([&] { return Write(kConverted, EncodeGroup4Tiff(page.bitmap)); });
}

ScratchCopy ScratchImages::WriteOriginal(std::span<const std::byte> content) {
    return Attempt([&] { return Write(kShown, content); });
}

ScratchCopy ScratchImages::Write(const char* name, std::span<const std::byte> content) {
    files_.Write(tempFolder_ + name, content, app::Keep::AsScratch);
    return {tempFolder_ + name, {}};
}

}  // namespace tavrene::imaging
