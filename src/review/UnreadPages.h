#pragma once

#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::review {

/// An image of `ProcessOut` that no listed form belongs to.
struct UnreadPage {
    std::string Name;
    std::string Reason;  ///< What the log says last about it.
    bool operator==(const UnreadPage&) const = default;
};

/// The images of `ProcessOut` that runs have moved there without a result, and those whose result has gone
/// or cannot be read: together with the review list every scan of the folder is seen.
class UnreadPages {
  public:
    /// Everything must outlive the object.
    UnreadPages(app::Files& files, app::ActivityLog& log, const app::WorkingFolders& folders)
        : files_(files), log_(log), folders_(folders) {}

    /// Looks at the folder anew. `listed` are the images of the forms in the review list. A folder that
    /// cannot be listed changes nothing.
    void Follow(const std::set<std::string>& listed);

    /// The same where there is no review list: the documents of the folder are read.
    void Follow();

    const std::vector<UnreadPage>& Pages() const { return pages_; }

    /// Moves pages back to `ProcessIn`, with a line each in the log. Those whose name waits there already
    /// stay where they are; gives the number of those that were moved. Throws `app::FileError` at the first
    /// that cannot be moved.
    int SendBack(std::span<const std::string> names);

  private:
    app::Files& files_;
    app::ActivityLog& log_;
    const app::WorkingFolders& folders_;
    std::vector<UnreadPage> pages_;
    std::map<std::string, std::string> seen_;  ///< Fingerprints of the pages.
};

}  // namespace tavrene::review
