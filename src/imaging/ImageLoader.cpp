#include "imaging/ImageLoader.h"

#include <exception>
#include <utility>

namespace tavrene::imaging {
namespace {

std::string_view TextOf(PageError fault) {
    return fault == PageError::NotABitmap ? "Image not in bitmap format"
                                          : "Unable to process since image has more than 2 colors";
}

}  // namespace

ImageLoader::ImageLoader(app::Files& files, app::ActivityLog& log, app::Operator& person,
                         std::string tempFolder)
    : files_(files), log_(log), person_(person), tempFolder_(std::move(tempFolder)) {}

bool ImageLoader::LoadImageForProcessing(const std::string& path) {
    if (!LoadImage(path))
        return false;
    WriteDisplayCopies(app::FileName(path), FormatOfExtension(path) == ImageFormat::Tiff && page_->inverted);
    return true;
}

bool ImageLoader::LoadImage(const std::string& path) {
    page_.reset();
    const std::string imageName = app::FileName(path);
    const std::optional<ImageFormat> format = FormatOfExtension(path);
    if (!format) {
        log_.LogProcessEvent(imageName + ": Unrecognized File type");
        return false;
    }
    std::variant<Page, PageError> read = ReadPage(files_, path, *format);
    if (const PageError* const fault = std::get_if<PageError>(&read)) {
        Refuse(imageName, TextOf(*fault));
        return false;
    }
    page_ = std::get<Page>(std::move(read));
    return true;
}

void ImageLoader::Refuse(const std::string& imageName, std::string_view reason) {
    log_.LogProcessEvent(imageName + ": " + std::string(reason));
    person_.ReportFile(imageName, reason);
}

// The copies serve the screen only: a full disk must not keep a form from being read.
void ImageLoader::WriteDisplayCopies(const std::string& imageName, bool alsoInverted) {
    try {
        const app::Bytes content = EncodeGroup4Tiff(page_->bitmap);
        files_.Write(tempFolder_ + "temp2.tif", content, app::Keep::AsScratch);
        if (alsoInverted)
            files_.Write(tempFolder_ + "temp.tif", content, app::Keep::AsScratch);
    } catch (const std::exception& error) {
        log_.LogProcessEvent(imageName + ": " + error.what());
    }
}

}  // namespace tavrene::imaging
