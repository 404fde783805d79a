#include "review/ReviewSession.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "profiles/ProfileLoader.h"
#include "review/FormReading.h"

namespace tavrene::review {

using app::Panel;

ReviewSession::ReviewSession(const ReviewContext& context, const app::Settings& settings,
                             const app::WorkingFolders& folders,
                             const std::vector<profiles::ProfileRecord>& profiles)
    : context_(context),
      folders_(folders),
      profiles_(profiles),
      doubts_(context.files, settings, folders, profiles, context.precise),
      list_(context, folders, doubts_),
      form_(context, settings, folders, profiles, list_),
      mover_(context.files, folders),
      unread_(context.files, context.log, folders) {}

void ReviewSession::Begin() {
    stage_ = Stage::On;
    FormScreen(context_).Clear();
    ShowList();
}

void ReviewSession::End() {
    form_.Close();
    doubts_.Keep();
    stage_ = Stage::Over;
    context_.person.SetPanel(Panel::File, profiles::ProfileCounts(profiles_));
    FormScreen screen(context_);
    screen.ClearPanels();
    screen.Clear();
}

void ReviewSession::RunBegins() {
    form_.Close();
    TrySettle();
}

void ReviewSession::Refill() {
    if (IsOn())
        ShowList();
}

void ReviewSession::ShowList() {
    TrySettle();
    tried_.clear();
    list_.Fill(profiles_);
    unreadIn_.clear();
    FollowUnread();
}

void ReviewSession::FollowUnread() {
    const std::string folder = context_.files.Fingerprint(folders_.ProcessOut);
    if (std::exchange(unreadIn_, folder) != folder)
        unread_.Follow(list_.Images());
}

void ReviewSession::SendBack(std::span<const std::string> names) {
    const int moved = unread_.SendBack(names);
    const int stayed = static_cast<int>(names.size()) - moved;
    context_.person.SetPanel(
        Panel::Message,
        std::to_string(moved) + (moved == 1 ? " page is" : " pages are") + " back in ProcessIn." +
            (stayed == 0
                 ? ""
                 : " " + std::to_string(stayed) + " stayed: a file of that name waits there already."));
    FollowFolder();
}

void ReviewSession::SendAllBack() {
    if (!IsOn())
        unread_.Follow();
    std::vector<std::string> names;
    for (const UnreadPage& page : unread_.Pages())
        names.push_back(page.Name);
    SendBack(names);
}

std::optional<std::size_t> ReviewSession::OpenLine() const {
    return HasForm() ? list_.IndexOf(form_.Form()->Document) : std::nullopt;
}

void ReviewSession::Open(std::size_t line) {
    const std::string document = list_.Lines().at(line).Document;
    context_.side.lines.SelectLine(line);
    tried_ = document;
    form_.Open(document);
    if (!list_.IndexOf(document))
        SelectLineNear(line);
}

// The next line has moved up into the place of the one that left.
void ReviewSession::SelectLineNear(std::size_t line) {
    tried_.clear();
    if (!list_.Lines().empty())
        context_.side.lines.SelectLine(std::min(line, list_.Lines().size() - 1));
}

std::optional<std::size_t> ReviewSession::Neighbour(std::optional<std::size_t> selected, int step) const {
    const std::optional<std::size_t> open = OpenLine();
    const std::optional<std::size_t> from = open ? open : selected;
    const bool isTried =
        selected && *selected < list_.Lines().size() && list_.Lines()[*selected].Document == tried_;
    const bool isNext = !open && !isTried && step > 0;
    const std::ptrdiff_t line = from ? static_cast<std::ptrdiff_t>(*from) + (isNext ? 0 : step) : 0;
    if (line < 0 || line >= std::ssize(list_.Lines()))
        return std::nullopt;
    return static_cast<std::size_t>(line);
}

void ReviewSession::FlipBox(int row) {
    BoxSelected(row);
    form_.FlipBox(row);
}

void ReviewSession::BoxSelected(int row) {
    if (HasForm())
        context_.page.Emphasise(row);
}

bool ReviewSession::NextDoubtful(int row) {
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

bool ReviewSession::MayLeave() {
    if (!HasForm() || !form_.Form()->Changed)
        return true;
    bool isLeft = false;
    try {
        isLeft = Leave(context_.person.AskYesNoCancel("Save changes to Form <" + form_.Form()->Name + ">?",
                                                      app::Answer::Yes));
    } catch (...) {
        SelectOpenLine();
        throw;
    }
    if (!isLeft)
        SelectOpenLine();
    return isLeft;
}

bool ReviewSession::Leave(app::Answer answer) {
    if (answer == app::Answer::No)
        form_.DropChanges();
    return answer == app::Answer::No || (answer == app::Answer::Yes && Save());
}

// The form that is not left is the one that counts, wherever the person has clicked.
void ReviewSession::SelectOpenLine() {
    if (const std::optional<std::size_t> line = OpenLine())
        context_.side.lines.SelectLine(*line);
}

bool ReviewSession::Save() {
    const std::vector<std::string> corrections = CorrectionsOf(*form_.Form());
    if (!form_.Save())
        return false;
    for (const std::string& correction : corrections)
        context_.log.LogProcessEvent(correction);
    const OpenForm& form = *form_.Form();
    list_.Change(form.Document, true, form.Result.Confidence());
    context_.log.LogProcessEvent("Reviewed & Saved [" + form.Name + "]");
    context_.person.SetPanel(Panel::Message, "Saved Form: " + form.Name);
    list_.ShowCounts();
    return true;
}

void ReviewSession::FollowFolder() {
    if (!IsOn())
        return;
    list_.Follow();
    FollowUnread();
}

// What an earlier decision left half done is settled first, since there is one note for all moves.
void ReviewSession::Decide(Decision decision) {
    SettleInterrupted();
    const FormMove move{decision, form_.Form()->Result.Image(), form_.Form()->Document};
    mover_.Move(move);
    decided_.push_back(Remembered(move));
    const std::size_t line = OpenLine().value_or(0);
    list_.Remove(move.Document);
    form_.Close();
    SelectLineNear(line);
    LogDecision(move);
    list_.ShowCounts();
}

ReviewSession::Decided ReviewSession::Remembered(const FormMove& move) const {
    const std::string& folder = mover_.FolderOf(move.decision);
    return {move, context_.files.Fingerprint(folder + move.Image),
            context_.files.Fingerprint(folder + move.Document)};
}

void ReviewSession::UndoDecision() {
    SettleInterrupted();
    const Decided last = decided_.back();
    const Decided now = Remembered(last.move);
    FormMove back = last.move;
    back.isBack = true;
    if (now.image != last.image || now.document != last.document) {
        decided_.pop_back();
        throw app::FileError("Form [" + app::BaseName(back.Document) + "] stays in " +
                             mover_.FolderOf(back.decision) + ": it was changed there or is gone");
    }
    mover_.Move(back);
    decided_.pop_back();
    form_.Close();
    LogDecision(back);
    list_.Follow();
    if (const std::optional<std::size_t> line = list_.IndexOf(back.Document)) {
        SelectLineNear(*line);
        GoOnTo(*line);
    }
}

void ReviewSession::GoOnTo(std::size_t line) {
    if (line < list_.Lines().size() && form_.OpensUnasked(list_.Lines()[line].Document))
        Open(line);
}

void ReviewSession::LogDecision(const FormMove& move) {
    const char* const word = move.decision == Decision::Accept ? "accepted." : "rejected.";
    context_.log.LogProcessEvent("Form [" + app::BaseName(move.Document) +
                                 (move.isBack ? "] brought back, no longer " : "] ") + word);
    mover_.Forget();
}

void ReviewSession::SettleInterrupted() {
    if (const std::optional<FormMove> done = mover_.Settle())
        LogDecision(*done);
}

// A decision that still cannot be settled must not keep the other forms away.
void ReviewSession::TrySettle() {
    try {
        SettleInterrupted();
    } catch (const std::exception& error) {
        context_.person.ShowMessage("", error.what());
    }
}

}  // namespace tavrene::review
