#include "batch/Claims.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <random>
#include <system_error>
#include <utility>

#include "app/Reason.h"

namespace tavrene::batch {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = ".claim-";

std::string OwnName() {
    std::array<char, 256> host{};
    ::gethostname(host.data(), host.size() - 1);
    // A process of the same number may have died on this machine before.
    return std::string(kPrefix) + host.data() + "-" + std::to_string(::getpid()) + "-" +
           std::to_string(std::random_device()() % 100'000);
}

// False when `to` is there, or `from` is not. Where files cannot have two names, what comes to `to` in the
// very moment between asking and moving is replaced.
bool MoveUnlessThere(const fs::path& from, const fs::path& to) {
    std::error_code error;
    fs::create_hard_link(from, to, error);
    if (!error)
        return fs::remove(from, error);
    if (error == std::errc::file_exists || error == std::errc::no_such_file_or_directory ||
        fs::exists(to, error))
        return false;
    fs::rename(from, to, error);
    return !error;
}

}  // namespace

Claims::Claims(const app::Files& files, std::string folder, std::chrono::seconds patience)
    : files_(files),
      folder_(std::move(folder)),
      patience_(patience),
      own_(folder_ + OwnName() + "/"),
      heart_([this](const std::stop_token& stop) { ShowLife(stop); }) {}

Claims::~Claims() {
    std::set<std::string> own;
    {
        const std::scoped_lock lock(mutex_);
        own = alive_;
    }
    for (const std::string& claim : own)
        app::FailureOf([&] { GiveBack(claim); });
}

// Several times within the patience of others, for a machine can be slow.
void Claims::ShowLife(const std::stop_token& stop) {
    std::condition_variable_any never;
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
        for (const std::string& claim : alive_) {
            std::error_code gone;
            fs::last_write_time(app::ToPath(claim), fs::file_time_type::clock::now(), gone);
        }
        never.wait_for(lock, stop, std::chrono::milliseconds(patience_) / 5, [] { return false; });
    }
}

std::vector<std::string> Claims::Others() const {
    std::vector<std::string> claims;
    std::error_code error;
    const std::scoped_lock lock(mutex_);
    for (fs::directory_iterator entry(app::ToPath(folder_), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = app::FromPath(entry->path().filename());
        const std::string claim = folder_ + name + "/";
        if (name.starts_with(kPrefix) && !alive_.contains(claim) && !left_.contains(claim))
            claims.push_back(name);
    }
    return claims;
}

void Claims::MakeFolder() {
    std::error_code error;
    fs::create_directory(app::ToPath(own_), error);
    const std::scoped_lock lock(mutex_);
    alive_.insert(own_);
}

bool Claims::OthersHold(const std::string& name) const {
    const std::vector<std::string> others = Others();
    return std::ranges::any_of(
        others, [&](const std::string& other) { return files_.FileExists(folder_ + other + "/" + name); });
}

// A new scan of a name that is being worked on has to wait: their images and results would meet. The other
// claim was there before the new scan could come, so looking afterwards is early enough.
bool Claims::Claim(const std::string& name) {
    // An earlier scan of that name may lie in the own folder still, because it could not be moved on.
    if (files_.FileExists(own_ + name))
        return false;
    std::error_code error;
    fs::rename(app::ToPath(folder_ + name), app::ToPath(own_ + name), error);
    if (error || !OthersHold(name))
        return !error;
    MoveUnlessThere(app::ToPath(own_ + name), app::ToPath(folder_ + name));
    return false;
}

std::vector<std::string> Claims::Take(std::size_t count) {
    if (waiting_.empty()) {
        waiting_ = files_.List(folder_, "*");
        std::erase_if(waiting_, [this](const std::string& name) { return tried_.contains(name); });
        std::ranges::reverse(waiting_);
        // Many who begin at one end would all try for the same files.
        if (!waiting_.empty()) {
            const auto first = static_cast<std::ptrdiff_t>(std::random_device()() % waiting_.size());
            std::rotate(waiting_.begin(), waiting_.begin() + first, waiting_.end());
        }
    }
    if (!waiting_.empty())
        MakeFolder();
    std::vector<std::string> taken;
    for (; taken.size() < count && !waiting_.empty(); waiting_.pop_back())
        if (Claim(waiting_.back()))
            taken.push_back(waiting_.back());
    return taken;
}

std::optional<std::string> Claims::TakeOver(Moment now) {
    std::map<std::string, Seen> seen;
    for (const std::string& name : Others()) {
        std::error_code error;
        Seen state{fs::last_write_time(app::ToPath(folder_ + name), error), now};
        if (const auto before = seen_.find(name);
            before != seen_.end() && before->second.change == state.change)
            state = before->second;
        seen[name] = state;
    }
    seen_ = std::move(seen);
    for (const auto& [name, state] : seen_) {
        if (now - state.since < patience_)
            continue;
        std::string mine = own_.substr(0, own_.size() - 1) + "-" + std::to_string(++takenOver_) + "/";
        std::error_code error;
        const std::scoped_lock lock(mutex_);
        fs::rename(app::ToPath(folder_ + name), app::ToPath(mine), error);
        if (error)
            continue;
        fs::last_write_time(app::ToPath(mine), fs::file_time_type::clock::now(), error);
        alive_.insert(mine);
        return mine;
    }
    return std::nullopt;
}

void Claims::GiveBackFile(const std::string& path) {
    constexpr int kMost = 1000;
    const std::string stem = folder_ + app::BaseName(path);
    const std::string ending = app::FileName(path).substr(app::BaseName(path).size());
    std::string place = stem + ending;
    for (int k = 2; k < kMost && !MoveUnlessThere(app::ToPath(path), app::ToPath(place)); ++k) {
        place = stem;
        place += "-" + std::to_string(k);
        place += ending;
    }
}

void Claims::GiveBack(const std::string& claim) {
    std::error_code error;
    if (!files_.FolderExists(claim))
        return;
    for (const std::string& name : files_.List(claim, "*")) {
        tried_.insert(name);
        GiveBackFile(claim + name);
    }
    // Half-written documents of an owner that died.
    for (const std::string& name : files_.List(claim, ".*.tmp"))
        fs::remove(app::ToPath(claim + name), error);
    // Only an empty folder goes.
    fs::remove(app::ToPath(claim), error);
    const std::scoped_lock lock(mutex_);
    alive_.erase(claim);
    if (fs::exists(app::ToPath(claim), error))
        left_.insert(claim);
}

}  // namespace tavrene::batch
