#include "ui/commands/Modes.h"

#include <cstddef>
#include <string_view>

namespace tavrene::commands {
namespace {

bool Has(std::string_view modes, Mode mode) {
    return modes.find(kModeLetters[static_cast<std::size_t>(mode)]) != std::string_view::npos;
}

}  // namespace

Mode ModeOf(const Situation& situation) {
    if (situation.isRunning)
        return Mode::Run;
    if (situation.isInReview)
        return situation.hasForm ? Mode::Form : Mode::Review;
    if (situation.canEdit)
        return Mode::Profile;
    if (situation.hasProfile)
        return Mode::Unreadable;
    return situation.wasInReview ? Mode::Desk : Mode::Start;
}

bool ActsIn(Command command, Mode mode) {
    return Has(RuleOf(command).acts, mode);
}

bool IsOfferedIn(Command command, Mode mode) {
    return ActsIn(command, mode) || Has(RuleOf(command).alsoOffered, mode);
}

bool IsShownIn(Command command, Mode mode) {
    return Has(RuleOf(command).shown, mode);
}

Prompts PromptsBefore(Command command) {
    return RuleOf(command).prompts;
}

}  // namespace tavrene::commands
