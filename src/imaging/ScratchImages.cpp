#include "imaging/ScratchImages.h"

#include <exception>
#include <utility>

#include "app/Reason.h"

namespace tavrene::imaging {
namespace {

constexpr const char* kShown = "temp2.tif";
constexpr const char* kConverted = "temp.tif";

// Encoding and writing fail in one way: by saying why.
template <typename Write>
std::string FailureOf(Write write) {
    try {
        write();
        return {};
    } catch (const std::exception& error) {
        return app::ReasonOf(error);
    }
}

}  // namespace

ScratchImages::ScratchImages(app::Files& files, std::string tempFolder)
    : files_(files), tempFolder_(std::move(tempFolder)) {}

std::string ScratchImages::WritePage(const Page& page) {
    return FailureOf([&] {
        const app::Bytes content = EncodeGroup4Tiff(page.bitmap);
        Write(kShown, content);
        if (page.format == ImageFormat::Tiff && page.inverted)
            Write(kConverted, content);
    });
}

std::string ScratchImages::WriteConverted(const Page& page) {
    return FailureOf([&] { Write(kConverted, EncodeGroup4Tiff(page.bitmap)); });
}

std::string ScratchImages::WriteOriginal(std::span<const std::byte> content) {
    return FailureOf([&] { Write(kShown, content); });
}

void ScratchImages::Write(const char* name, std::span<const std::byte> content) {
    files_.Write(tempFolder_ + name, content, app::Keep::AsScratch);
}

}  // namespace tavrene::imaging
