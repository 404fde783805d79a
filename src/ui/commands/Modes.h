#pragma once

#include "ui/commands/CommandTable.h"

namespace tavrene::commands {

/// What the window is about and what there is to act on: a command is judged by this and by nothing else.
enum class Mode {
    Start,       ///< Profiling; the window has just been opened.
    Desk,        ///< Profiling without a profile, after review.
    Unreadable,  ///< Profiling; the profile that was chosen cannot be read.
    Profile,     ///< Profiling with an open profile.
    Review,      ///< Review without an open form.
    Form,        ///< Review with an open form.
    Run          ///< A processing run goes on, wherever it was started.
};

/// The state of the sessions that makes the mode.
struct Situation {
    bool isRunning = false;
    bool isInReview = false;
    bool wasInReview = false;  ///< Since the window was opened.
    bool hasForm = false;      ///< A form is open.
    bool hasProfile = false;   ///< A profile was chosen, readable or not.
    bool canEdit = false;      ///< It is open.
};

Mode ModeOf(const Situation& situation);

/// Whether the command does something in that mode.
bool ActsIn(Command command, Mode mode);

/// Whether its button is enabled then, as it is where the command acts, and in a few modes where it has no
/// effect.
bool IsOfferedIn(Command command, Mode mode);

/// Whether its button is to be seen.
bool IsShownIn(Command command, Mode mode);

Prompts PromptsBefore(Command command);

}  // namespace tavrene::commands
