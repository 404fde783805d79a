#pragma once

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "app/Files.h"

namespace tavrene::batch {

/// Shares one folder of waiting files among any number of processes and machines, by renaming alone: whoever
/// has moved a file into a hidden folder of its own beside it has claimed it, and nobody else sees it there.
/// A claim folder shows that its owner lives by its time of change; one that stands still for too long is
/// taken over as a whole, together with the notes about what its owner was doing.
class Claims {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    /// `folder` ends in a separator. An owner counts as dead when its claim has stood still for `patience`,
    /// by the clock of who watches it: the clocks of the machines need not agree. `files` must outlive this.
    Claims(const app::Files& files, std::string folder, std::chrono::seconds patience);

    /// What is still claimed is given back.
    ~Claims();
    Claims(const Claims&) = delete;
    Claims& operator=(const Claims&) = delete;

    /// The folder of the own claims, ending in a separator; made when something is claimed.
    const std::string& Folder() const { return own_; }

    /// Claims up to `count` waiting files and gives their names in listing order. What was claimed once and
    /// given back is not claimed again. Throws `app::FileError` when the folder cannot be listed.
    std::vector<std::string> Take(std::size_t count);

    /// Whether others hold claims at the moment, dead ones among them.
    bool OthersWork() const { return !Others().empty(); }

    /// Takes a dead one's claim folder over (path ending in a separator); nothing while none is known to be
    /// dead. The folder is an own one from here on.
    std::optional<std::string> TakeOver(Moment now);

    /// Moves what is in an own claim folder back to where it waited, and removes the folder. A file whose
    /// name has come anew meanwhile gets a number behind it.
    void GiveBack(const std::string& claim);

  private:
    std::vector<std::string> Others() const;
    bool OthersHold(const std::string& name) const;
    void GiveBackFile(const std::string& path);
    bool Claim(const std::string& name);
    void MakeFolder();
    void ShowLife(const std::stop_token& stop);

    struct Seen {
        std::filesystem::file_time_type change;
        Moment since;
    };

    const app::Files& files_;
    std::string folder_;
    std::chrono::seconds patience_;
    std::string own_;
    std::vector<std::string> waiting_;  // names not tried yet, the next one last
    std::set<std::string> tried_;       // names that were given back
    std::map<std::string, Seen> seen_;  // claims of others
    int takenOver_ = 0;
    mutable std::mutex mutex_;
    std::set<std::string> left_;   // own folders that could not be removed
    std::set<std::string> alive_;  // own folders, whose time of change is kept new
    std::jthread heart_;
};

}  // namespace tavrene::batch
