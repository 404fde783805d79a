#include "ui/commands/Processing.h"

#include <utility>

#include "app/ScopedFlag.h"

namespace tavrene::commands {

Processing::Processing(AppState& state, recognition::ProcessRun& run, std::function<void()> runBegins,
                       std::function<void()> closeWindow)
    : state_(state), run_(run), runBegins_(std::move(runBegins)), closeWindow_(std::move(closeWindow)) {}

void Processing::Process() {
    if (!run_.MayStart(state_.profiles))
        return;
    const app::ScopedFlag processing(state_.processing);
    runBegins_();
    run_.Run(state_.profiles);
}

void Processing::Stop() {
    run_.Stop();
}

bool Processing::MayClose() {
    if (!state_.processing)
        return true;
    closeAfterRun_ = true;
    run_.Stop();
    return false;
}

void Processing::CloseIfWaiting() {
    if (!state_.processing && std::exchange(closeAfterRun_, false))
        closeWindow_();
}

}  // namespace tavrene::commands
