#include "ui/reviewing/DoubtCommands.h"

#include "app/Counted.h"
#include "ui/reviewing/SheetDialog.h"
#include "ui/reviewing/WatchedWork.h"

namespace tavrene::ui {

using commands::Command;

DoubtCommands::DoubtCommands(review::ReviewSession& session, const Context& context)
    : session_(session), context_(context) {
    const auto hasForms = [this] { return !session_.Lines().empty(); };
    context_.gate.SetHandler(Command::NextDoubt, [this] { NextDoubt(); });
    context_.gate.SetHandler(
        Command::DoubtSheet, [this] { ShowSheet(); }, hasForms);
    context_.gate.SetHandler(
        Command::AcceptAllClear, [this] { AcceptAllClear(); }, hasForms);
    context_.gate.SetHandler(
        Command::UndoDecision, [this] { UndoDecision(); }, [this] { return session_.HasDecided(); });
}

void DoubtCommands::NextDoubt() {
    WatchedWork work(context_.person, "Looking for the next doubt...");
    if (session_.NextDoubt(session_.HasForm() ? context_.boxes.CurrentNumber() : 0, work.Watch()))
        context_.boxes.setFocus();
}

// The sheet rewrites documents, so no form is open meanwhile; the one that was is opened again.
void DoubtCommands::ShowSheet() {
    const std::string open = session_.HasForm() ? session_.Form()->Document : std::string();
    session_.CloseForm();
    SheetDialog dialog(session_.Sheet(), context_.person, &context_.window);
    dialog.exec();
    const review::SheetBox& chosen = dialog.Chosen();
    session_.FollowFolder();
    if (chosen.Row > 0)
        session_.OpenAt(chosen.Document, chosen.Row);
    else if (!open.empty())
        session_.OpenAt(open, 0);
    if (chosen.Row > 0 && session_.HasForm())
        context_.boxes.setFocus();
    else if (const std::string report = dialog.Report(); !report.empty())
        context_.person.SetPanel(app::Panel::Message, report);
}

void DoubtCommands::AcceptAllClear() {
    // Unsaved changes have been asked about; No has dropped them.
    if (session_.HasForm() && session_.Form()->Changed)
        session_.CloseForm();
    {
        WatchedWork work(context_.person, "Looking at forms that were not looked at yet...");
        session_.CountAllDoubts(work.Watch());
    }
    const review::ClearForms forms = session_.FindClear();
    if (forms.documents.empty())
        context_.person.SetPanel(app::Panel::Message, NothingClear(forms));
    else if (context_.person.AskYesNo(AcceptAllQuestion(forms), app::Answer::Yes) == app::Answer::Yes)
        Accept(forms);
}

void DoubtCommands::Accept(const review::ClearForms& forms) {
    std::size_t accepted = session_.Lines().size();
    std::vector<std::string> failures;
    {
        WatchedWork work(context_.person, "Accepting forms...");
        failures = session_.AcceptAll(forms, work.Watch());
    }
    accepted -= session_.Lines().size();
    context_.person.SetPanel(app::Panel::Message, "Accepted " + app::Counted(accepted, "form", "forms") +
                                                      ". Undo Decision (Ctrl+U) brings them back.");
    if (!failures.empty())
        context_.person.ShowMessage("", review::TextOfFailures(failures));
}

void DoubtCommands::UndoDecision() {
    WatchedWork work(context_.person, "Bringing forms back...");
    session_.UndoDecision(work.Watch());
}

}  // namespace tavrene::ui
