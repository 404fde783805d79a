#include "ui/commands/RunSession.h"

#include <utility>

#include "app/ScopedFlag.h"

namespace tavrene::commands {

RunSession::RunSession(const AppState& state, recognition::ProcessRun& run, Listener listener)
    : state_(state), run_(run), listener_(std::move(listener)) {}

void RunSession::Process() {
    if (!run_.MayStart(state_.profiles))
        return;
    try {
        const app::ScopedFlag running(isRunning_);
        listener_.begins();
        run_.Run(state_.profiles);
    } catch (...) {
        listener_.ended();
        throw;
    }
    listener_.ended();
}

void RunSession::Stop() {
    run_.Stop();
}

bool RunSession::MayClose() {
    if (!isRunning_)
        return true;
    closeAfterRun_ = true;
    run_.Stop();
    return false;
}

void RunSession::CloseIfWaiting() {
    if (!isRunning_ && std::exchange(closeAfterRun_, false))
        listener_.close();
}

}  // namespace tavrene::commands
