#pragma once

#include <chrono>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "app/Files.h"
#include "batch/Heartbeat.h"

namespace tavrene::batch {

/// Shares one folder of waiting files among any number of processes and machines, by renaming alone: whoever
/// has moved a file into a folder of its own in the hidden folder `.claims` has claimed it, and nobody else
/// sees it where it was. A claim folder shows that its owner lives by its time of change; one that stands
/// still for longer than its own name says is taken over as a whole, together with the notes about what its
/// owner was doing.
class Claims {
  public:
    using Moment = std::chrono::steady_clock::time_point;

    /// `folder` ends in a separator. Others count this one as dead when its claim has stood still for
    /// `patience`, by the clock of who watches it: the clocks of the machines need not agree. `files` must
    /// outlive this.
    Claims(const app::Files& files, std::string folder, std::chrono::seconds patience);

    /// What is still claimed is given back.
    ~Claims();
    Claims(const Claims&) = delete;
    Claims& operator=(const Claims&) = delete;

    /// The folder of the own claims, ending in a separator; made when something is claimed.
    const std::string& Folder() const { return own_; }

    /// Claims some `count` waiting files and gives their names. Files that differ in nothing but their
    /// extensions share a result: they are claimed together and stand in listing order. What was given back
    /// is not claimed again while it stays as it is. Throws `app::FileError` when the folder cannot be
    /// listed.
    std::vector<std::string> Take(std::size_t count);

    /// Why a file that waited could not be claimed though nobody else had it, or a dead one's claim not be
    /// taken over; empty where there was none.
    std::string Hindrance() const { return hindrance_ ? hindrance_.message() : std::string(); }

    /// Whether others hold claims at the moment with which something can be done, dead ones among them.
    bool OthersWork() const;

    /// Takes a dead one's claim folder over (path ending in a separator), or what an earlier one could not
    /// give back, once; nothing while there is none. The folder is an own one from here on.
    std::optional<std::string> TakeOver(Moment now);

    /// Moves what is in an own claim folder back to where it waited, and removes the folder. A file whose
    /// name has come anew meanwhile gets a number behind it. Gives the path under which the rest lies that
    /// cannot be given back; usually there is none.
    std::string GiveBack(const std::string& claim);

  private:
    struct Seen {
        std::filesystem::file_time_type change;
        Moment since;
    };
    using Group = std::vector<std::string>;

    std::vector<std::string> Others() const;
    std::set<std::string> HeldByOthers() const;
    void ListWaiting();
    void MakeFolder();
    bool Claim(const std::string& name);
    std::vector<std::string> ClaimGroups(std::size_t count);
    void Look(Moment now);
    std::optional<std::string> Seize(const std::string& name);
    void MakeLinkWhole(const std::filesystem::path& path) const;
    std::string GiveBackFile(const std::string& path);
    std::string Leave(const std::string& claim);

    const app::Files& files_;
    const std::string folder_;
    const std::string claims_;  // the folder of all claims
    const std::chrono::seconds patience_;
    const std::string own_;
    std::deque<Group> waiting_;                 // not tried yet
    std::map<std::string, std::string> tried_;  // what was given back, and its state at that time
    std::map<std::string, Seen> seen_;          // claims of others
    std::set<std::string> hopeless_;            // claims with which nothing can be done
    std::map<std::string, std::string> names_;  // own folders that were taken over, and their names before
    std::error_code hindrance_;
    int takenOver_ = 0;
    Heartbeat heart_;
};

}  // namespace tavrene::batch
