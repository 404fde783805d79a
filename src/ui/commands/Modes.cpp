#include "ui/commands/Modes.h"

#include <algorithm>
#include <initializer_list>
#include <stdexcept>
#include <string_view>

namespace tavrene::commands {
namespace {

using C = Command;

// The modes by a letter each, in their order.
constexpr std::string_view kLetters = "SDUPRFX";

// Everywhere but in a run.
constexpr std::string_view kIdle = "SDUPRF";

// The commands of one rule are never in different states.
struct Rule {
    std::initializer_list<Command> commands;
    std::string_view acts;
    Prompts prompts = Prompts::None;
    std::string_view alsoOffered = {};  // where it is enabled without effect
    std::string_view shown = kLetters;
};

// Save and Delete are enabled when the window opens, as all of its buttons but the decisions; with review
// they go until there is a profile again. Process and Stop are one group: while a run goes on, a second
// Process is enabled and ignored, and Stop has nothing to stop before.
const Rule kRules[] = {
    {{C::New}, "SDUP", Prompts::Profile},
    {{C::Save, C::DeleteProfile}, "UP", Prompts::None, "S"},
    {{C::ZoomToOrig, C::ZoomIn, C::ZoomOut, C::FitPage, C::FitWidth}, kIdle},
    {{C::Process}, kIdle, Prompts::ProfileThenForm, "X"},
    {{C::Stop}, kLetters},
    {{C::Review}, kIdle, Prompts::ProfileThenForm},
    {{C::Okay, C::RejectForm}, "F", Prompts::None, "", "RF"},
    {{C::AcceptForm}, "F", Prompts::Form, "", "RF"},
    {{C::SelectBox, C::AddBox, C::DeleteBox}, "P"},
    {{C::RenameBox, C::Undo, C::Redo, C::FindMoreBoxes}, "P"},
    {{C::SelectAllBoxes, C::SelectSameSize, C::EqualSize, C::AlignLeft, C::AlignRight, C::AlignTop,
      C::AlignBottom, C::DistributeAcross, C::DistributeDown},
     "P"},
    {{C::OpenForm, C::NextForm, C::PreviousForm}, "RF", Prompts::Form},
    {{C::FlipBox, C::NextDoubtful}, "F"},
    {{C::UndoDecision}, "RF", Prompts::Form},
    {{C::ExportResults}, kIdle, Prompts::Form},
    {{C::ToolbarLabels, C::OpenWorkingFolder, C::OpenLog, C::Settings, C::About}, kIdle},
    {{C::PreciseAlignment, C::SecondOpinion, C::ReadAgain, C::RunSummary, C::PasteScans, C::Manual, C::GoOn},
     kIdle},
    {{C::PickFile, C::ProcessUnread}, kIdle, Prompts::ProfileThenForm},
    {{C::BackToProcessIn, C::AllBackToProcessIn}, "RF"},
    {{C::Exit}, kLetters, Prompts::FormThenProfile},

    {{C::PickThumbnail}, "SDUP", Prompts::Profile},
    {{C::SetActive, C::EditBoxes}, "P"},
    {{C::PickForm}, "RF", Prompts::Form},
    {{C::PickProfile, C::PickMark}, "F"},
};

const Rule& RuleOf(Command command) {
    for (const Rule& rule : kRules)
        if (std::find(rule.commands.begin(), rule.commands.end(), command) != rule.commands.end())
            return rule;
    throw std::logic_error("a command without a rule");
}

bool Has(std::string_view modes, Mode mode) {
    return modes.find(kLetters[static_cast<std::size_t>(mode)]) != std::string_view::npos;
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
