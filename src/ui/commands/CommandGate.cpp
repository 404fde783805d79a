#include "ui/commands/CommandGate.h"

#include <exception>
#include <utility>

namespace tavrene::commands {
namespace {

bool ActsDuringRun(Command command) {
    return command == Command::Stop || command == Command::Exit;
}

}  // namespace

CommandGate::CommandGate(app::Operator& person, const bool& processing)
    : person_(person), processing_(processing) {}

void CommandGate::SetHandler(Command command, std::function<void()> handler) {
    handlers_[command] = std::move(handler);
}

void CommandGate::SetAfterwards(std::function<void()> afterwards) {
    afterwards_ = std::move(afterwards);
}

bool CommandGate::Offers(Command command) const {
    if (!handlers_.contains(command))
        return false;
    return !processing_ || ActsDuringRun(command) || InfoOf(command).group == ButtonGroup::Processing;
}

void CommandGate::Run(Command command) {
    const auto handler = handlers_.find(command);
    if (handler == handlers_.end() || (processing_ && !ActsDuringRun(command)))
        return;
    Guard(handler->second);
}

void CommandGate::Guard(const std::function<void()>& event) {
    try {
        event();
    } catch (const std::exception& failure) {
        person_.ShowMessage("", failure.what());
    }
    if (afterwards_)
        afterwards_();
}

}  // namespace tavrene::commands
