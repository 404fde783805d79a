#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/DiskFile.h"
#include "app/Files.h"

namespace tavrene::batch {

/// Tells which files of a folder nobody writes to any more: those that have stayed as they are for a while.
/// Where the system tells that a writer has not closed its file yet, that one is waited for, though not for
/// ever.
class IncomingWatch {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    /// Scanners write a page in bursts; a network copy can stall for about as long.
    static constexpr std::chrono::seconds kQuiet{2};
    /// When a file is taken that stayed where it was, although it was given out before.
    static constexpr std::chrono::minutes kRetry{5};

    /// `folder` ends in a separator. `files` must outlive this.
    IncomingWatch(const app::Files& files, std::string folder);

    /// The files that can be taken at that moment, in listing order; each is given out once, and again when
    /// it has changed. Throws `app::FileError` when the folder cannot be listed.
    std::vector<std::string> Take(Moment now);

    /// Waits until something happens in the folder, or until something may have become quiet. Folders of
    /// other machines tell of nothing, so it looks by itself now and then.
    void Wait();

  private:
    struct Seen {
        std::string fingerprint;
        Moment since;
        bool isGivenOut = false;
    };

    void TakeEvents();
    void Note(std::uint32_t event, std::string_view name);

    const app::Files& files_;
    std::string folder_;
    app::disk::Descriptor events_;
    std::map<std::string, Seen> seen_;
    std::set<std::string, std::less<>> open_;  ///< Written to and not closed since.
};

}  // namespace tavrene::batch
