#pragma once

#include <functional>

#include "recognition/ProcessRun.h"
#include "ui/commands/AppState.h"

namespace tavrene::commands {

/// The commands `Process` and `Stop`, and what closing the window means while a run goes on.
class RunSession {
  public:
    struct Listener {
        std::function<void()> begins;  ///< A run is about to start.
        std::function<void()> ended;   ///< It has ended, well or not.
        std::function<void()> close;   ///< The window can close, which had to wait for the end of the run.
    };

    /// The references must outlive the object.
    RunSession(const AppState& state, recognition::ProcessRun& run, Listener listener);

    bool IsRunning() const { return isRunning_; }

    /// Runs over all files of `ProcessIn`; returns when the run has ended.
    void Process();
    void Stop();

    /// Whether the window may close at once. During a run it may not: the run is stopped, the current file is
    /// finished, and then the window is closed.
    bool MayClose();

    /// Closes the window when that was asked for during a run and the run has ended.
    void CloseIfWaiting();

  private:
    const AppState& state_;
    recognition::ProcessRun& run_;
    Listener listener_;
    bool isRunning_ = false;
    bool closeAfterRun_ = false;
};

}  // namespace tavrene::commands
