#pragma once

#include <functional>
#include <map>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "ui/commands/CommandTable.h"

namespace tavrene::commands {

/// The one way from the window's events to what they do. Keeps a run from being disturbed, and turns what
/// goes wrong into a message instead of a crash.
class CommandGate {
  public:
    /// `processing` tells whether a run goes on; all references must outlive the gate.
    CommandGate(app::Operator& person, app::ActivityLog& log, const bool& processing);

    /// `canRun` tells whether the command has something to act on; without it the command always has.
    void SetHandler(Command command, std::function<void()> handler, std::function<bool()> canRun = {});

    /// Called when a command or event has ended, well or not.
    void SetAfterwards(std::function<void()> afterwards);

    /// Whether the command's button is to be enabled: it has a handler and something to act on, and during a
    /// run it is `Process` or `Stop` (which are never in different states) or `Exit` (closing has a rule of
    /// its own for a run).
    bool Offers(Command command) const;

    /// Runs a command. During a run all but `Stop` and `Exit` are ignored.
    void Run(Command command);

    /// Runs what an event of the window asks for; an exception ends it with a message. Lines
    /// that were lost to the log are told in the `Message` panel afterwards.
    void Guard(const std::function<void()>& event);

    /// The same for what the person does in lists and views, which a run ignores.
    void Take(const std::function<void()>& event);

  private:
    struct Handler {
        std::function<void()> run;
        std::function<bool()> canRun;
    };

    app::Operator& person_;
    app::ActivityLog& log_;
    const bool& processing_;
    std::map<Command, Handler> handlers_;
    std::function<void()> afterwards_;
};

}  // namespace tavrene::commands
