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
    ::inotify_add_watch(events_.Number(), folder_.c_str(), IN_CLOSE_WRITE | IN_CREATE | IN_MOVED_TO);
}

std::vector<std::string> IncomingWatch::Take(Moment now) {
    std::map<std::string, Seen> seen;
    std::vector<std::string> taken;
    for (const std::string& name : files_.List(folder_, "*")) {
        Seen state{files_.Fingerprint(folder_ + name), now};
        if (const auto before = seen_.find(name);
            before != seen_.end() && before->second.fingerprint == state.fingerprint)
            state = before->second;
        const bool isDue = now - state.since >= (state.isGivenOut ? Moment::duration(kRetry) : kQuiet);
        if (isDue) {
            taken.push_back(name);
            state.isGivenOut = true;
            state.since = now;
        }
        seen[name] = std::move(state);
    }
    seen_ = std::move(seen);
    return taken;
}

void IncomingWatch::Wait() const {
    constexpr int kWhileUnsettled = 500;
    constexpr int kOtherwise = 10'000;
    const bool isUnsettled =
        std::ranges::any_of(seen_, [](const auto& entry) { return !entry.second.isGivenOut; });
    ::pollfd events{events_.Number(), POLLIN, 0};
    if (isUnsettled)
        ::poll(nullptr, 0, kWhileUnsettled);
    else
        ::poll(&events, 1, kOtherwise);
    std::array<char, 4096> ignored{};
    while (::read(events_.Number(), ignored.data(), ignored.size()) > 0) {
    }
}

}  // namespace tavrene::batch
