#include "profiles/SpecimenPage.h"

#include <utility>
#include <variant>

namespace tavrene::profiles {
namespace {

using imaging::ImageFormat;
using imaging::PageError;

constexpr double kFittingWidth = 750;
constexpr double kFittingStep = 0.96;

void KeepSize(const imaging::Bitmap& picture, SpecimenShown& shown) {
    shown.width = picture.Width();
    shown.height = picture.Height();
}

}  // namespace

SpecimenPage::SpecimenPage(app::Files& files, imaging::PageScreen& page, std::string tempFolder)
    : files_(files), page_(page), scratch_(files, std::move(tempFolder)) {}

std::string SpecimenPage::KeepOriginal(const std::string& image) {
    if (imaging::SpecimenFormat(image) != ImageFormat::Tiff || !files_.FileExists(image))
        return {};
    return scratch_.WriteOriginal(files_.Read(image));
}

SpecimenShown SpecimenPage::Show(const std::string& image, bool isNewProfile) {
    const auto read = imaging::ReadSpecimen(files_, image);
    const PageError* const error = std::get_if<PageError>(&read);
    if (error == nullptr)
        return Show(std::get<imaging::Page>(read), isNewProfile);
    SpecimenShown shown;
    page_.SetZoom(100);
    if (*error == PageError::TooManyColors) {
        KeepSize(imaging::DecodeImage(files_.Read(image), imaging::SpecimenFormat(image),
                                      imaging::Decode::HeaderOnly),
                 shown);
        page_.ShowFile(image);
    } else if (*error == PageError::NoLibrary) {
        page_.Clear();  // told when the program started
    } else {
        page_.Clear();
        shown.missing =
            "The specimen image " + image +
            (files_.FileExists(image) ? " cannot be read as an image." : " is not there any more.");
    }
    return shown;
}

SpecimenShown SpecimenPage::Show(const imaging::Page& page, bool isNewProfile) {
    SpecimenShown shown;
    page_.SetZoom(100);
    KeepSize(page.bitmap, shown);
    page_.ShowPicture(page.bitmap);
    if (page.format != ImageFormat::Tiff || (isNewProfile && page.inverted))
        shown.copyFailure = scratch_.WriteConverted(page);
    return shown;
}

// The zoom is kept here: a view may have a smallest zoom, at which a very wide image would never fit.
void SpecimenPage::Fit(int width) {
    for (double zoom = 100; width * zoom / 100 > kFittingWidth;) {
        zoom *= kFittingStep;
        page_.SetZoom(zoom);
    }
}

}  // namespace tavrene::profiles
