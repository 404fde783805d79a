#pragma once

#include <functional>

#include "recognition/ProcessRun.h"
#include "ui/commands/AppState.h"

namespace tavrene::commands {

/// The commands `Process` and `Stop`, and what closing the window means while a run goes on.
class Processing {
  public:
    /// `runBegins` is called when a run is about to start, `closeWindow` when a close that had to wait for
    /// the end of a run can go on. The references must outlive the object.
    Processing(AppState& state, recognition::ProcessRun& run, std::function<void()> runBegins,
               std::function<void()> closeWindow);

    /// Runs over all files of `ProcessIn`; returns when the run has ended.
    void Process();
    void Stop();

    /// Whether the window may close at once. During a run it may not: the run is stopped, the current file is
    /// finished, and then the window is closed.
    bool MayClose();

    /// Closes the window when that was asked for during a run and the run has ended.
    void CloseIfWaiting();

  private:
    AppState& state_;
    recognition::ProcessRun& run_;
    std::function<void()> runBegins_;
    std::function<void()> closeWindow_;
    bool closeAfterRun_ = false;
};

}  // namespace tavrene::commands
