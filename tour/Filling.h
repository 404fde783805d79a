#pragma once

#include <string>

namespace tavrene::tour {

/// Makes `workingFolder` what an operator with the samples would have before the first run: the blank forms
/// as specimen images, their profiles, and all scans waiting. What an earlier filling left there is removed.
/// Throws std::runtime_error when the folder holds a working folder that was not filled here, or a file
/// cannot be written.
void FillWorkingFolder(const std::string& samplesFolder, const std::string& workingFolder);

/// Points the program's settings at the folder and sets all others to their defaults. Throws
/// std::runtime_error where the settings would be the person's own, which is where XDG_CONFIG_HOME names no
/// folder.
void WriteSettings(const std::string& workingFolder);

}  // namespace tavrene::tour
