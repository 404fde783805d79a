#include "ui/commands/CommandGate.h"

#include <exception>
#include <utility>

#include "app/Reason.h"

namespace tavrene::commands {

CommandGate::CommandGate(GateContext context) : context_(std::move(context)) {}

void CommandGate::SetHandler(Command command, std::function<void()> handler,
                             std::function<bool()> hasTarget) {
    handlers_[command] = {std::move(handler), std::move(hasTarget)};
}

void CommandGate::SetAfterwards(std::function<void()> afterwards) {
    afterwards_ = std::move(afterwards);
}

bool CommandGate::HasTarget(Command command) const {
    const auto found = handlers_.find(command);
    return found == handlers_.end() || !found->second.hasTarget || found->second.hasTarget();
}

bool CommandGate::Offers(Command command) const {
    return IsOfferedIn(command, CurrentMode()) && HasTarget(command);
}

void CommandGate::Run(Command command) {
    const auto found = handlers_.find(command);
    if (found != handlers_.end() && ActsIn(command, CurrentMode()) && HasTarget(command))
        Take(command, found->second.run);
}

void CommandGate::Take(Command command, const std::function<void()>& event) {
    if (!ActsIn(command, CurrentMode()))
        return;
    Guard([&] {
        if (MayGoOn(PromptsBefore(command)))
            event();
    });
}

bool CommandGate::MayGoOn(Prompts prompts) const {
    switch (prompts) {
        case Prompts::None:
            return true;
        case Prompts::Profile:
            return context_.mayLeaveProfile();
        case Prompts::Form:
            return context_.mayLeaveForm();
        case Prompts::ProfileThenForm:
            return context_.mayLeaveProfile() && context_.mayLeaveForm();
        case Prompts::FormThenProfile:
            return context_.mayLeaveForm() && context_.mayLeaveProfile();
    }
    return false;
}

void CommandGate::Guard(const std::function<void()>& event) {
    ++depth_;
    try {
        event();
    } catch (const std::exception& failure) {
        context_.person.ShowMessage("", app::ReasonOf(failure));
    }
    if (context_.log.TakeLostLines() > 0)
        context_.person.SetPanel(app::Panel::Message, "The log in the working folder could not be written.");
    if (--depth_ == 0 && afterwards_)
        afterwards_();
}

}  // namespace tavrene::commands
