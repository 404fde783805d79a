#pragma once

#include <string>
#include <variant>

#include "app/Files.h"
#include "imaging/PageReader.h"

namespace tavrene::profiles {

/// The file type by which a specimen image is read: JPEG or PNG by its extension, TIFF otherwise.
imaging::ImageFormat SpecimenFormat(const std::string& path);

/// Reads a specimen image as a binarised page.
std::variant<imaging::Page, imaging::PageFault> ReadSpecimen(const app::Files& files,
                                                             const std::string& path);

}  // namespace tavrene::profiles
