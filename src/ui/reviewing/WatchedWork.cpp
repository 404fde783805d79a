#include "ui/reviewing/WatchedWork.h"

namespace tavrene::ui {
namespace {

// Milliseconds: showing every form would cost more than accepting it.
constexpr int kShownEvery = 60;

}  // namespace

WatchedWork::~WatchedWork() {
    if (isShown_)
        person_.SetProgress(0);
}

review::WorkWatch WatchedWork::Watch() {
    return [this](std::size_t done, std::size_t total) { return GoesOn(done, total); };
}

// Work that is over at once shows nothing.
bool WatchedWork::GoesOn(std::size_t done, std::size_t total) {
    if (!since_.isValid())
        since_.start();
    if (since_.elapsed() < kShownEvery)
        return true;
    if (!std::exchange(isShown_, true)) {
        person_.SetPanel(app::Panel::Message, text_ + " Esc stops.");
        person_.SetProgressRange(static_cast<int>(total));
    }
    person_.SetProgress(static_cast<int>(done));
    person_.RunPendingEvents();
    since_.start();
    return !escape_.WasPressed();
}

}  // namespace tavrene::ui
