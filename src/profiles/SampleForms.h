#pragma once

#include <string>

#include "app/Files.h"

namespace tavrene::profiles {

/// Makes a folder that exists a working folder with what `samples` holds: blank forms, their profiles, and
/// filled scans that wait to be processed. Files that are there already stay as they are. Throws
/// `app::FileError`, or `DocumentError` about a profile.
void CopySampleForms(app::Files& files, const std::string& samples, const std::string& workingFolder);

}  // namespace tavrene::profiles
