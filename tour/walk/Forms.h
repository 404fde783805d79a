#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::tour {

/// What people meant: of each form, by the base name of its scan, the names of the boxes that they marked.
using FormTruth = std::map<std::string, std::vector<std::string>>;

/// Makes a profile with its specimen, and 49 scans of it in `ProcessIn`. Ten boxes in seven of them are drawn
/// so that counting their ink misreads them: marks that are too small, and places where the pen rested.
FormTruth PaintForms(app::Files& files, const app::WorkingFolders& folders);

/// The boxes of which the result documents of a folder say otherwise, as "form: box", and all forms that have
/// none or are not reviewed when `reviewed` is asked for.
std::vector<std::string> DifferencesFrom(const FormTruth& truth, const app::Files& files,
                                         const std::string& folder, bool reviewed);

}  // namespace tavrene::tour
