#include "imaging/ScratchImages.h"

#include <utility>

#include "app/Reason.h"

namespace tavrene::imaging {
namespace {

constexpr const char* kShown = "temp2.tif";
constexpr const char* kConverted = "temp.tif";

}  // namespace

ScratchCopy CopyOf(const Page& page) {
    ScratchCopy copy;
    copy.converted = page.format == ImageFormat::Tiff && page.inverted;
    copy.failure = app::FailureOf([&] { copy.content = EncodeGroup4Tiff(page.bitmap); });
    return copy;
}

ScratchImages::ScratchImages(app::Files& files, std::string tempFolder)
    : files_(files), tempFolder_(std::move(tempFolder)) {}

std::string ScratchImages::Write(const ScratchCopy& copy) {
    if (copy.content.empty())
        return copy.failure;
    return app::FailureOf([&] {
        Write(kShown, copy.content);
        if (copy.converted)
            Write(kConverted, copy.content);
    });
}

std::string ScratchImages::WriteConverted(const Page& page) {
    return app::FailureOf([&] { Write(kConverted, EncodeGroup4Tiff(page.bitmap)); });
}

std::string ScratchImages::WriteOriginal(std::span<const std::byte> content) {
    return app::FailureOf([&] { Write(kShown, content); });
}

void ScratchImages::Write(const char* name, std::span<const std::byte> content) {
    files_.Write(tempFolder_ + name, content, app::Keep::AsScratch);
}

}  // namespace tavrene::imaging
