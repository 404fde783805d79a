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

/// What became of pages that were to be sent back.
struct SentBack {
    int Moved = 0;
    int Waiting = 0;      ///< Stayed, since a file of their name waits in `ProcessIn`.
    int Settled = 0;      ///< Have gone meanwhile, or have a result that can be read.
    std::string Failure;  ///< Why one could not be moved, and those behind it were not tried; else empty.
};

/// That in sentences, without the failure.
std::string TextOf(const SentBack& sent);

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
    /// stay where they are, and so do those that have a result by now: it may have been reviewed.
    SentBack SendBack(std::span<const std::string> names);

  private:
    bool IsSettled(const std::string& name) const;

    app::Files& files_;
    app::ActivityLog& log_;
    const app::WorkingFolders& folders_;
    std::vector<UnreadPage> pages_;
    std::map<std::string, std::string> seen_;  ///< Fingerprints of the pages.
};

}  // namespace tavrene::review
