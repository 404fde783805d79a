#pragma once

#include <string>

namespace tavrene::bench {

/// The floor that figures are told in: the image library loading a page file and saving it again as Group 4
/// TIFF to `copy`. Throws std::runtime_error when it cannot.
void LoadAndSave(const std::string& page, const std::string& copy);

/// A new empty folder for the life of the program, without a trailing separator.
const std::string& ScratchFolder();

}  // namespace tavrene::bench
