#include "batch/Claims.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/ClaimFolders.h"
#include "app/Reason.h"
#include "recognition/ResultDocument.h"

namespace tavrene::batch {
namespace {

namespace fs = std::filesystem;

// Who watches a claim goes by the patience that its owner counts on, not by its own.
std::string OwnName(std::chrono::seconds patience) {
    std::array<char, 256> host{};
    ::gethostname(host.data(), host.size() - 1);
    // A process of the same number may have died on this machine before.
    return std::to_string(patience.count()) + "s-" + host.data() + "-" + std::to_string(::getpid()) + "-" +
           std::to_string(std::random_device()() % 100'000);
}

std::optional<std::chrono::seconds> PatienceOf(std::string_view claim) {
    int seconds = 0;
    const auto [end, error] = std::from_chars(claim.data(), claim.data() + claim.size(), seconds);
    if (error != std::errc() || !std::string_view(end).starts_with("s-"))
        return std::nullopt;
    return std::chrono::seconds(seconds);
}

enum class Moved { Yes, IsTaken, Failed };

// Where files cannot have two names, what comes to `to` in the very moment between asking and moving is
// replaced.
Moved MoveUnlessThere(const fs::path& from, const fs::path& to) {
    std::error_code error;
    std::error_code none;
    fs::create_hard_link(from, to, error);
    if (!error) {
        fs::remove(from, error);
        // In a folder of another account, perhaps. One scan must not wait under two names.
        if (error)
            fs::remove(to, none);
        return error ? Moved::Failed : Moved::Yes;
    }
    if (error == std::errc::file_exists || fs::exists(to, none))
        return Moved::IsTaken;
    fs::rename(from, to, error);
    return error ? Moved::Failed : Moved::Yes;
}

std::vector<fs::path> EntriesOf(const std::string& folder, std::error_code& error) {
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(app::ToPath(folder), error), end; !error && entry != end;
         entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

}  // namespace

Claims::Claims(const app::Files& files, std::string folder, std::chrono::seconds patience)
    : files_(files),
      folder_(std::move(folder)),
      claims_(app::ClaimsIn(folder_)),
      patience_(patience),
      own_(claims_ + OwnName(patience) + "/"),
      heart_(patience) {}

Claims::~Claims() {
    for (const std::string& claim : heart_.Kept())
        app::FailureOf([&] { GiveBack(claim); });
}

std::vector<std::string> Claims::Others() const {
    std::vector<std::string> claims = app::ClaimFoldersIn(claims_);
    std::erase_if(claims, [this](const auto& name) { return heart_.Keeps(claims_ + name + "/"); });
    return claims;
}

bool Claims::OthersWork() const {
    return std::ranges::any_of(Others(), [this](const auto& name) { return !hopeless_.contains(name); });
}

// The base names of what others are working on, and of images that came to their place without their results.
std::set<std::string> Claims::HeldByOthers() const {
    constexpr int kMostLooks = 10;
    std::set<std::string> held;
    // A folder that has another owner meanwhile has another name, too.
    bool hasMoved = true;
    for (int look = 0; hasMoved && look < kMostLooks; ++look) {
        hasMoved = false;
        for (const std::string& other : Others()) {
            std::error_code error;
            for (const fs::path& entry : EntriesOf(claims_ + other, error)) {
                const std::string path = app::FromPath(entry);
                const bool isNote = app::FileName(path).starts_with('.');
                held.insert(app::BaseName(isNote ? recognition::ImageOfResult(files_, path) : path));
            }
            hasMoved = hasMoved || error;
        }
    }
    return held;
}

void Claims::ListWaiting() {
    std::map<std::string, std::string> tried;
    std::map<std::string, std::size_t> groups;
    for (const std::string& name : files_.List(folder_, "*")) {
        const auto before = tried_.find(name);
        if (before != tried_.end() && before->second == files_.Fingerprint(folder_ + name)) {
            tried.insert(*before);
            continue;
        }
        const auto [group, isNew] = groups.emplace(app::BaseName(name), waiting_.size());
        if (isNew)
            waiting_.emplace_back();
        waiting_[group->second].push_back(name);
    }
    tried_ = std::move(tried);
    // Many who begin at one end would all try for the same files.
    if (!waiting_.empty())
        std::rotate(waiting_.begin(),
                    waiting_.begin() + static_cast<std::ptrdiff_t>(std::random_device()() % waiting_.size()),
                    waiting_.end());
}

void Claims::MakeFolder() {
    constexpr int kMostTries = 10;
    std::error_code error;
    std::error_code none;
    // Another one may just remove the folder of all claims as the last one to leave.
    for (int k = 0; k < kMostTries && !fs::is_directory(app::ToPath(own_), none); ++k)
        fs::create_directories(app::ToPath(own_), error);
    if (error && !fs::is_directory(app::ToPath(own_), none))
        hindrance_ = error;
    heart_.Keep(own_);
}

// Two folders deeper, what a link says of its own place is no longer true.
void Claims::MakeLinkWhole(const fs::path& path) const {
    std::error_code error;
    const fs::path target = fs::read_symlink(path, error);
    if (error || target.is_absolute())
        return;
    const fs::path whole = path.parent_path() / ".whole-link.tmp";
    fs::remove(whole, error);
    fs::create_symlink(app::ToPath(folder_) / target, whole, error);
    fs::rename(whole, path, error);
}

bool Claims::Claim(const std::string& name) {
    // An earlier scan of that name may lie in the own folder still, because it could not be moved on.
    if (files_.FileExists(own_ + name))
        return false;
    std::error_code error;
    fs::rename(app::ToPath(folder_ + name), app::ToPath(own_ + name), error);
    if (!error)
        MakeLinkWhole(app::ToPath(own_ + name));
    else if (error != std::errc::no_such_file_or_directory)
        hindrance_ = error;
    return !error;
}

// Behind one that somebody else has got, those of its name have to wait.
std::vector<std::string> Claims::ClaimGroups(std::size_t count) {
    std::vector<std::string> taken;
    for (; taken.size() < count && !waiting_.empty(); waiting_.pop_front())
        for (const std::string& name : waiting_.front()) {
            if (!Claim(name))
                break;
            taken.push_back(name);
        }
    return taken;
}

// A new scan of a name that is being worked on has to wait: their results would meet, and perhaps their
// images. The other claim was there before the new scan could come, so looking afterwards is early enough.
std::vector<std::string> Claims::Take(std::size_t count) {
    if (waiting_.empty())
        ListWaiting();
    if (!waiting_.empty())
        MakeFolder();
    std::vector<std::string> taken;
    while (taken.empty() && !waiting_.empty()) {
        taken = ClaimGroups(count);
        const std::set<std::string> held = taken.empty() ? std::set<std::string>() : HeldByOthers();
        std::erase_if(taken, [&](const std::string& name) {
            if (!held.contains(app::BaseName(name)))
                return false;
            MoveUnlessThere(app::ToPath(own_ + name), app::ToPath(folder_ + name));
            return true;
        });
    }
    return taken;
}

void Claims::Look(Moment now) {
    std::map<std::string, Seen> seen;
    for (const std::string& name : Others()) {
        std::error_code error;
        Seen state{fs::last_write_time(app::ToPath(claims_ + name), error), now};
        if (const auto before = seen_.find(name);
            before != seen_.end() && before->second.change == state.change)
            state = before->second;
        seen[name] = state;
    }
    seen_ = std::move(seen);
}

std::optional<std::string> Claims::Seize(const std::string& name) {
    std::string mine = own_.substr(0, own_.size() - 1) + "-" + std::to_string(++takenOver_) + "/";
    std::error_code error;
    // Kept before it is there, or it would seem to be another's.
    heart_.Keep(mine);
    fs::rename(app::ToPath(claims_ + name), app::ToPath(mine), error);
    if (error) {
        heart_.Drop(mine);
        // Usually somebody else was faster.
        if (error != std::errc::no_such_file_or_directory) {
            hindrance_ = error;
            hopeless_.insert(name);
        }
        return std::nullopt;
    }
    fs::last_write_time(app::ToPath(mine), fs::file_time_type::clock::now(), error);
    for (const fs::path& entry : EntriesOf(mine, error))
        MakeLinkWhole(entry);
    names_[mine] = name;
    return mine;
}

std::optional<std::string> Claims::TakeOver(Moment now) {
    Look(now);
    std::vector<std::string> ownerless;
    for (const auto& [name, state] : seen_)
        if (!hopeless_.contains(name) && now - state.since >= PatienceOf(name).value_or(patience_))
            ownerless.push_back(name);
    std::error_code none;
    for (const fs::path& entry : EntriesOf(claims_, none))
        if (const std::string name = app::FromPath(entry.filename());
            name.starts_with(app::kLeftClaim) && !hopeless_.contains(name))
            ownerless.push_back(name);
    for (const std::string& name : ownerless)
        if (auto mine = Seize(name))
            return mine;
    return std::nullopt;
}

// Gives the name that it has got; none where it stays.
std::string Claims::GiveBackFile(const std::string& path) {
    constexpr int kMost = 1000;
    const std::string stem = app::BaseName(path);
    const std::string ending = app::FileName(path).substr(stem.size());
    std::string name = stem + ending;
    Moved moved = MoveUnlessThere(app::ToPath(path), app::ToPath(folder_ + name));
    for (int k = 2; k < kMost && moved == Moved::IsTaken; ++k) {
        name = stem;
        name += "-" + std::to_string(k);
        name += ending;
        moved = MoveUnlessThere(app::ToPath(path), app::ToPath(folder_ + name));
    }
    return moved == Moved::Yes ? name : std::string();
}

std::string Claims::GiveBack(const std::string& claim) {
    std::error_code error;
    if (!files_.FolderExists(claim))
        return {};
    for (const std::string& name : files_.List(claim, "*")) {
        if (const std::string place = GiveBackFile(claim + name); !place.empty())
            tried_[place] = files_.Fingerprint(folder_ + place);
    }
    // Half-written documents of an owner that died.
    for (const std::string& name : files_.List(claim, ".*.tmp"))
        fs::remove(app::ToPath(claim + name), error);
    // Only an empty folder goes.
    fs::remove(app::ToPath(claim), error);
    std::string rest = fs::exists(app::ToPath(claim), error) ? Leave(claim) : std::string();
    heart_.Drop(claim);
    names_.erase(claim);
    fs::remove(app::ToPath(claims_), error);
    return rest;
}

// Under a name by which nobody waits for it, and which stays the same whoever tries again in vain: each does
// so once.
std::string Claims::Leave(const std::string& claim) {
    const auto before = names_.find(claim);
    const std::string last = app::FileName(claim.substr(0, claim.size() - 1));
    std::string name = before == names_.end() ? last : before->second;
    if (!name.starts_with(app::kLeftClaim))
        name.insert(0, app::kLeftClaim);
    std::error_code error;
    fs::rename(app::ToPath(claim), app::ToPath(claims_ + name), error);
    hopeless_.insert(name);
    hopeless_.insert(last);
    return error ? claim : claims_ + name;
}

}  // namespace tavrene::batch
