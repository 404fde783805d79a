#include "ui/commands/ReadingCommands.h"

#include <algorithm>
#include <array>
#include <thread>
#include <utility>

#include "app/Counted.h"
#include "recognition/ReadingFlags.h"

namespace tavrene::commands {

using recognition::kPreciseAlignment;
using recognition::kSecondOpinion;
using recognition::kUseAllCores;

int JobsOf(const recognition::ReadingOptions& reading) {
    return reading.allCores ? std::max(1, static_cast<int>(std::thread::hardware_concurrency())) : 1;
}

ReadingCommands::ReadingCommands(AppState& state, const Context& context) : state_(state), context_(context) {
    state_.reading = {app::ReadWindowFlag(context.store, kPreciseAlignment, false),
                      app::ReadWindowFlag(context.store, kSecondOpinion, true),
                      app::ReadWindowFlag(context.store, kUseAllCores, false)};
    CommandGate& gate = context_.gate;
    gate.SetHandler(Command::PreciseAlignment,
                    [this] { Switch(state_.reading.preciseAlignment, kPreciseAlignment); });
    gate.SetHandler(Command::SecondOpinion, [this] { Switch(state_.reading.secondOpinion, kSecondOpinion); });
    gate.SetHandler(Command::UseAllCores, [this] { Switch(state_.reading.allCores, kUseAllCores); });
    gate.SetHandler(
        Command::ReadAgain, [this] { ReadAgain(); }, [this] { return !forms_.empty(); });
}

void ReadingCommands::Switch(bool& option, std::string_view name) {
    option = !option;
    app::WriteWindowFlag(context_.store, name, option);
}

void ReadingCommands::RunBegins() {
    forms_.clear();
    context_.person.ShowNotices({});
}

void ReadingCommands::RunEnded(const recognition::OpinionTally& opinions) {
    forms_ = recognition::FormsToRead(context_.files, opinions, state_.folders.ProcessOut);
    if (const std::string text = recognition::TextOf(opinions); !text.empty())
        Tell({text});
}

void ReadingCommands::Tell(app::Notice notice) {
    if (!forms_.empty()) {
        notice.button = "Read These Again";
        notice.act = [this] { context_.gate.Run(Command::ReadAgain); };
    }
    context_.person.ShowNotices(std::array{notice});
}

void ReadingCommands::ReadAgain() {
    context_.closeForm();
    context_.person.SetPanel(app::Panel::Message, "Reading forms again... Esc stops.");
    recognition::FormsReadAgain again;
    context_.undisturbed([&](const std::function<bool()>& goesOn) {
        again = recognition::ReadFormsAgain(
            {context_.files, context_.log, context_.person, context_.reader, goesOn}, forms_,
            state_.folders.ProcessOut, state_.profiles, state_.settings.FillThreshold);
    });
    context_.person.SetPanel(app::Panel::Message, "");
    forms_ = std::move(again.left);
    context_.wereRead(again.read);
    std::string text = app::Counted(again.read.size(), "form was", "forms were") +
                       " read by Precise Alignment" + (again.read.empty() ? "." : " and can be reviewed.");
    if (!forms_.empty())
        text += " " + app::Counted(forms_.size(), "form is", "forms are") + " left.";
    Tell({text});
}

}  // namespace tavrene::commands
