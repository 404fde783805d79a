#include "ui/commands/ReadingCommands.h"

#include <array>

#include "recognition/precise/ReadAgain.h"
#include "ui/commands/Counted.h"

namespace tavrene::commands {

ReadingCommands::ReadingCommands(AppState& state, const Context& context) : state_(state), context_(context) {
    state_.reading = {app::ReadWindowFlag(context.store, kPreciseAlignment, false),
                      app::ReadWindowFlag(context.store, kSecondOpinion, true)};
    CommandGate& gate = context_.gate;
    gate.SetHandler(Command::PreciseAlignment,
                    [this] { Switch(state_.reading.preciseAlignment, kPreciseAlignment); });
    gate.SetHandler(Command::SecondOpinion, [this] { Switch(state_.reading.secondOpinion, kSecondOpinion); });
    gate.SetHandler(
        Command::ReadAgain, [this] { ReadAgain(); }, [this] { return !unread_.empty(); });
}

void ReadingCommands::Switch(bool& option, std::string_view name) {
    option = !option;
    app::WriteWindowFlag(context_.store, name, option);
}

void ReadingCommands::RunBegins() {
    unread_.clear();
    context_.person.ShowNotices({});
}

void ReadingCommands::RunEnded(const recognition::OpinionTally& opinions) {
    unread_ = opinions.unread;
    app::Notice notice{recognition::TextOf(opinions)};
    if (notice.text.empty())
        return;
    if (!unread_.empty()) {
        notice.button = "Read These Again";
        notice.act = [this] { context_.gate.Run(Command::ReadAgain); };
    }
    context_.person.ShowNotices(std::array{notice});
}

void ReadingCommands::ReadAgain() {
    const int count = recognition::ReadFormsAgain(unread_, state_.folders.ProcessOut, context_.files,
                                                  context_.log, context_.person, context_.reader,
                                                  state_.profiles, state_.settings.FillThreshold);
    unread_.clear();
    context_.person.ShowNotices(
        std::array{app::Notice{Counted(count, "form was", "forms were") + " read by Precise Alignment" +
                               (count > 0 ? " and can be reviewed." : ".")}});
}

}  // namespace tavrene::commands
