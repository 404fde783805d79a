#include "ui/commands/ReviewCommands.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "profiles/ProfileLoader.h"

namespace tavrene::commands {

using app::Panel;
using review::Decision;

ReviewCommands::ReviewCommands(const AppState& state, const review::ReviewContext& context,
                               std::function<void()> closeProfile)
    : state_(state),
      context_(context),
      closeProfile_(std::move(closeProfile)),
      list_(context_, state_.folders),
      form_(context_, state_.settings, state_.folders, state_.profiles, list_),
      decisions_(context_, state_.folders, list_) {}

void ReviewCommands::Toggle(const SavePrompts& prompts) {
    if (!prompts.ProfileThenForm())
        return;
    form_.Close();
    inReview_ = !inReview_;
    if (inReview_) {
        closeProfile_();
        ClearScreen();
        ShowList();
    } else {
        LeaveReview();
    }
}

// A decision that still cannot be settled must not keep the other forms away.
void ReviewCommands::Settle() {
    try {
        decisions_.SettleInterrupted();
    } catch (const std::exception& error) {
        context_.person.ShowMessage("", error.what());
    }
}

void ReviewCommands::ShowList() {
    Settle();
    tried_.reset();
    list_.Fill(state_.profiles);
}

void ReviewCommands::RunBegins() {
    form_.Close();
    Settle();
}

void ReviewCommands::LeaveReview() {
    context_.person.SetPanel(Panel::File, profiles::ProfileCounts(state_.profiles));
    context_.person.SetPanel(Panel::Message, "");
    context_.person.SetPanel(Panel::ElapsedTime, "");
    ClearScreen();
}

void ReviewCommands::ClearScreen() {
    context_.page.Clear();
    context_.rows.ClearRows(profiles::BoxColumns::Name);
    context_.choice.SetChoice("");
}

void ReviewCommands::Refill() {
    if (inReview_)
        ShowList();
}

std::optional<std::size_t> ReviewCommands::OpenLine() {
    return HasForm() ? list_.IndexOf(form_.Form()->Document) : std::nullopt;
}

bool ReviewCommands::MayLeave() {
    return !HasForm() || decisions_.OfferSave(*form_.Form());
}

void ReviewCommands::Open(std::size_t line) {
    if (!inReview_ || line >= list_.Lines().size())
        return;
    const std::string document = list_.Lines()[line].Document;
    // The form that is asked about, which stays open unless its saving succeeds.
    if (const std::optional<std::size_t> open = OpenLine(); open && form_.Form()->Changed)
        context_.lines.SelectLine(*open);
    if (!MayLeave())
        return;
    context_.lines.SelectLine(line);
    tried_ = line;
    form_.Open(document);
    if (!list_.IndexOf(document))
        tried_.reset();
}

void ReviewCommands::OpenNeighbour(std::optional<std::size_t> selected, int step) {
    const std::optional<std::size_t> open = OpenLine();
    const std::optional<std::size_t> from = open ? open : selected;
    const bool isNext = !open && selected != tried_ && step > 0;
    const std::ptrdiff_t line = from ? static_cast<std::ptrdiff_t>(*from) + (isNext ? 0 : step) : 0;
    if (line >= 0)
        Open(static_cast<std::size_t>(line));
}

void ReviewCommands::FlipBox(int row) {
    BoxSelected(row);
    form_.FlipBox(row);
}

void ReviewCommands::BoxSelected(int row) {
    if (HasForm())
        context_.page.Emphasise(row);
}

bool ReviewCommands::NextDoubtful(int row) {
    if (!HasForm())
        return false;
    const int next = form_.NextDoubtful(row);
    if (next == 0) {
        context_.person.SetPanel(Panel::Message, "No box of this form is in doubt.");
        return false;
    }
    context_.rows.SelectRow(next);
    context_.page.Emphasise(next);
    return true;
}

void ReviewCommands::Okay() {
    if (HasForm())
        decisions_.Save(*form_.Form());
}

void ReviewCommands::Accept() {
    if (MayLeave())
        Decide(Decision::Accept);
}

void ReviewCommands::Reject() {
    Decide(Decision::Reject);
}

// The next line moves up into the place of the one that leaves.
void ReviewCommands::Decide(Decision decision) {
    if (!HasForm())
        return;
    const std::size_t line = OpenLine().value_or(0);
    decisions_.Decide(*form_.Form(), decision, [this, line] {
        form_.Close();
        tried_.reset();
        if (!list_.Lines().empty())
            context_.lines.SelectLine(std::min(line, list_.Lines().size() - 1));
    });
}

}  // namespace tavrene::commands
