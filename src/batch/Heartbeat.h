#pragma once

#include <chrono>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace tavrene::batch {

/// Shows others that the owner of some folders lives: their times of change are kept new.
class Heartbeat {
  public:
    /// Several times within `patience`, for a machine can be slow.
    explicit Heartbeat(std::chrono::seconds patience);

    /// Folders (paths ending in a separator) that are kept, and are no longer.
    void Keep(const std::string& folder);
    void Drop(const std::string& folder);

    bool Keeps(const std::string& folder) const;
    std::set<std::string> Kept() const;

  private:
    void Beat(const std::stop_token& stop);

    const std::chrono::milliseconds pause_;
    mutable std::mutex mutex_;
    std::set<std::string> kept_;
    std::jthread thread_;
};

}  // namespace tavrene::batch
