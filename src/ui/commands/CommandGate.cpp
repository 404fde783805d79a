#include "ui/commands/CommandGate.h"

#include <exception>
#include <utility>

#include "app/Reason.h"

namespace tavrene::commands {
namespace {

bool ActsDuringRun(Command command) {
    return command == Command::Stop || command == Command::Exit;
}

}  // namespace

CommandGate::CommandGate(app::Operator& person, app::ActivityLog& log, const bool& processing)
    : person_(person), log_(log), processing_(processing) {}

void CommandGate::SetHandler(Command command, std::function<void()> handler, std::function<bool()> canRun) {
    handlers_[command] = {std::move(handler), std::move(canRun)};
}

void CommandGate::SetAfterwards(std::function<void()> afterwards) {
    afterwards_ = std::move(afterwards);
}

bool CommandGate::Offers(Command command) const {
    const auto handler = handlers_.find(command);
    if (handler == handlers_.end() || (handler->second.canRun && !handler->second.canRun()))
        return false;
    return !processing_ || ActsDuringRun(command) || InfoOf(command).group == ButtonGroup::Processing;
}

void CommandGate::Run(Command command) {
    const auto handler = handlers_.find(command);
    if (handler == handlers_.end() || (processing_ && !ActsDuringRun(command)))
        return;
    Guard(handler->second.run);
}

void CommandGate::Guard(const std::function<void()>& event) {
    try {
        event();
    } catch (const std::exception& failure) {
        person_.ShowMessage("", app::ReasonOf(failure));
    }
    if (log_.TakeLostLines() > 0)
        person_.SetPanel(app::Panel::Message, "The log in the working folder could not be written.");
    if (afterwards_)
        afterwards_();
}

void CommandGate::Take(const std::function<void()>& event) {
    if (!processing_)
        Guard(event);
}

}  // namespace tavrene::commands
