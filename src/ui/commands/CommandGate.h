#pragma once

#include <functional>
#include <map>

#include "app/ActivityLog.h"
#include "app/Operator.h"
#include "ui/commands/CommandTable.h"
#include "ui/commands/Modes.h"

namespace tavrene::commands {

/// What the gate needs of the window; everything must outlive it.
struct GateContext {
    app::Operator& person;
    app::ActivityLog& log;
    std::function<Mode()> mode;  ///< The mode of the moment.

    /// The prompts about unsaved work; false when the command at hand is to be abandoned. They ask nothing
    /// where nothing is unsaved.
    std::function<bool()> mayLeaveProfile;
    std::function<bool()> mayLeaveForm;
};

/// The one way from the window's events to what they do. It asks the table of modes whether a command acts
/// and which prompts come first, and turns what goes wrong into a message instead of a crash.
class CommandGate {
  public:
    explicit CommandGate(GateContext context);

    /// `hasTarget` tells whether the command has something to act on in a mode in which it acts; without it
    /// the command always has.
    void SetHandler(Command command, std::function<void()> handler, std::function<bool()> hasTarget = {});

    /// Called when a command or event has ended, well or not; once, however many others it has led to.
    void SetAfterwards(std::function<void()> afterwards);

    /// A command or event is under way; what strikes in the meantime (a timer behind an open question) waits.
    bool IsBusy() const { return depth_ > 0; }

    Mode CurrentMode() const { return context_.mode(); }

    /// Whether the command's button is to be enabled.
    bool Offers(Command command) const;

    /// Runs a command, unless it does not act now or a prompt is answered with Cancel.
    void Run(Command command);

    /// The same with a handler of the moment: what the person does in a list or view.
    void Take(Command command, const std::function<void()>& event);

    /// Runs what is no command of the person; an exception ends it with a message. Lines that
    /// were lost to the log are told in the `Message` panel afterwards.
    void Guard(const std::function<void()>& event);

  private:
    struct Handler {
        std::function<void()> run;
        std::function<bool()> hasTarget;
    };

    bool HasTarget(Command command) const;
    bool MayGoOn(Prompts prompts) const;

    GateContext context_;
    std::map<Command, Handler> handlers_;
    std::function<void()> afterwards_;
    int depth_ = 0;  ///< Of events within events.
};

}  // namespace tavrene::commands
