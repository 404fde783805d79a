#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"
#include "intake/BringIn.h"
#include "recognition/RunSummary.h"

namespace tavrene::commands {

/// Whether images are made of the pages of a file: a PDF, a TIFF of several, or a picture of a kind that runs
/// do not read. Another one is a scan that is copied as it is, or none.
bool HoldsPages(const app::Files& files, const std::string& path);

/// What came of bringing in.
struct PagesBroughtIn {
    std::string told;                ///< In a sentence.
    std::vector<std::string> paths;  ///< The files whose pages came in.
};

/// Makes an image in `ProcessIn` of each page of the sources. Files that could not be brought in are told one
/// by one. Throws as `intake::BringIn` does.
PagesBroughtIn BringPagesIn(std::span<const intake::Source> sources, app::Files& files, app::Operator& person,
                            const app::WorkingFolders& folders, const intake::Watch& watch);

/// The files of a run of which only the first page was looked at, from their second page on, where they lie
/// now.
std::vector<intake::Source> FurtherPagesOf(const recognition::RunSummary& summary, const app::Files& files,
                                           const app::WorkingFolders& folders);

}  // namespace tavrene::commands
