#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::app {

/// What the name of a page's image has behind its stem, without an extension: "-p007", nothing for the only
/// page of a file.
std::string PageSuffix(int page, int pages);

/// Finds names for new images that belong to nothing else in the four processing folders.
class ImageNames {
  public:
    /// The folders as they are now.
    ImageNames(const Files& files, const WorkingFolders& folders);

    /// The stem of the file at `path` with each of `endings`; where one of them is taken already, with a
    /// number behind the stem ("scan-2-p001.tif"). The names count as taken from here on.
    std::vector<std::string> Take(const std::string& path, std::span<const std::string> endings);

  private:
    bool IsFree(const std::string& name) const;

    const Files& files_;
    std::string incoming_;
    std::set<std::string> taken_;  // base names in lower case
};

}  // namespace tavrene::app
