#include "batch/IncomingWatch.h"

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tavrene::batch {

IncomingWatch::IncomingWatch(const app::Files& files, std::string folder)
    : files_(files), folder_(std::move(folder)), events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    ::inotify_add_watch(events_.Number(), folder_.c_str(),
                        IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE);
}

// Files that are only made are not waited for: links are never closed.
void IncomingWatch::Note(std::uint32_t event, std::string_view name) {
    if ((event & IN_Q_OVERFLOW) != 0)
        open_.clear();
    else if ((event & IN_MODIFY) != 0)
        open_.emplace(name);
    else if (const auto open = open_.find(name); open != open_.end() && (event & IN_CREATE) == 0)
        open_.erase(open);
}

void IncomingWatch::TakeEvents() {
    alignas(::inotify_event) std::array<char, 4096> buffer{};
    for (::ssize_t size = 0; (size = ::read(events_.Number(), buffer.data(), buffer.size())) > 0;) {
        for (::ssize_t at = 0; at < size;) {
            const char* const place = buffer.data() + at;
            const auto& event = *reinterpret_cast<const ::inotify_event*>(place);
            // The name is filled up with zeros.
            Note(event.mask, event.len > 0 ? place + sizeof(event) : "");
            at += static_cast<::ssize_t>(sizeof(event) + event.len);
        }
    }
}

std::vector<std::string> IncomingWatch::Take(Moment now) {
    TakeEvents();
    std::map<std::string, Seen> seen;
    std::vector<std::string> taken;
    for (const std::string& name : files_.List(folder_, "*")) {
        Seen state{files_.Fingerprint(folder_ + name), now};
        if (const auto before = seen_.find(name);
            before != seen_.end() && before->second.fingerprint == state.fingerprint)
            state = before->second;
        const bool hasTime = state.isGivenOut || open_.contains(name);
        if (now - state.since >= (hasTime ? Moment::duration(kRetry) : kQuiet)) {
            taken.push_back(name);
            state.isGivenOut = true;
            state.since = now;
        }
        seen[name] = std::move(state);
    }
    seen_ = std::move(seen);
    return taken;
}

void IncomingWatch::Wait() {
    constexpr int kWhileUnsettled = 500;
    constexpr int kOtherwise = 10'000;
    const bool isUnsettled =
        std::ranges::any_of(seen_, [](const auto& entry) { return !entry.second.isGivenOut; });
    ::pollfd events{events_.Number(), POLLIN, 0};
    if (isUnsettled)
        ::poll(nullptr, 0, kWhileUnsettled);
    else
        ::poll(&events, 1, kOtherwise);
    TakeEvents();
}

}  // namespace tavrene::batch
