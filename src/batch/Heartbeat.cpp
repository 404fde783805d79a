#include "batch/Heartbeat.h"

#include <condition_variable>
#include <filesystem>
#include <system_error>

#include "app/Files.h"

namespace tavrene::batch {

Heartbeat::Heartbeat(std::chrono::seconds patience)
    : pause_(std::chrono::milliseconds(patience) / 5),
      thread_([this](const std::stop_token& stop) { Beat(stop); }) {}

void Heartbeat::Keep(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    kept_.insert(folder);
}

void Heartbeat::Drop(const std::string& folder) {
    const std::scoped_lock lock(mutex_);
    kept_.erase(folder);
}

bool Heartbeat::Keeps(const std::string& folder) const {
    const std::scoped_lock lock(mutex_);
    return kept_.contains(folder);
}

std::set<std::string> Heartbeat::Kept() const {
    const std::scoped_lock lock(mutex_);
    return kept_;
}

void Heartbeat::Beat(const std::stop_token& stop) {
    using Time = std::filesystem::file_time_type;
    std::condition_variable_any never;
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
        for (const std::string& folder : kept_) {
            std::error_code gone;
            std::filesystem::last_write_time(app::ToPath(folder), Time::clock::now(), gone);
        }
        never.wait_for(lock, stop, pause_, [] { return false; });
    }
}

}  // namespace tavrene::batch
