#include "profiles/Specimen.h"

namespace tavrene::profiles {

imaging::ImageFormat SpecimenFormat(const std::string& path) {
    const std::string extension = app::UpperCase(app::Extension(path));
    if (extension == "JPG")
        return imaging::ImageFormat::Jpeg;
    return extension == "PNG" ? imaging::ImageFormat::Png : imaging::ImageFormat::Tiff;
}

std::variant<imaging::Page, imaging::PageFault> ReadSpecimen(const app::Files& files,
                                                             const std::string& path) {
    return imaging::ReadPage(files, path, SpecimenFormat(path));
}

}  // namespace tavrene::profiles
