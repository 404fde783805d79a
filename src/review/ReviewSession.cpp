#include "review/ReviewSession.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "app/Reason.h"
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
    const SentBack sent = unread_.SendBack(names);
    context_.person.SetPanel(Panel::Message, TextOf(sent));
    unreadIn_.clear();
    FollowFolder();
    if (!sent.Failure.empty())
        throw app::FileError(sent.Failure);
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
    const std::string near = DocumentNear(line);
    context_.side.lines.SelectLine(line);
    tried_ = document;
    form_.Open(document);
    if (!list_.IndexOf(document))
        SelectDocument(near);
}

std::string ReviewSession::DocumentBeside(std::optional<std::size_t> line, int step) const {
    const std::optional<std::size_t> beside = context_.side.lines.Beside(line, step);
    return beside ? list_.Lines().at(*beside).Document : std::string();
}

// What the person turns to when a line leaves: the one below it, or above the last.
std::string ReviewSession::DocumentNear(std::size_t line) const {
    const std::string below = DocumentBeside(line, 1);
    return below.empty() ? DocumentBeside(line, -1) : below;
}

void ReviewSession::SelectDocument(const std::string& document) {
    tried_.clear();
    if (const std::optional<std::size_t> line = list_.IndexOf(document))
        context_.side.lines.SelectLine(*line);
}

std::optional<std::size_t> ReviewSession::Neighbour(std::optional<std::size_t> selected, int step) const {
    const std::optional<std::size_t> open = OpenLine();
    const std::optional<std::size_t> from = open ? open : selected;
    const bool isTried =
        selected && *selected < list_.Lines().size() && list_.Lines()[*selected].Document == tried_;
    if (from && !open && !isTried && step > 0)
        return from;
    return context_.side.lines.Beside(from, from ? step : 1);
}

std::optional<std::size_t> ReviewSession::FirstToDo() const {
    const std::optional<std::size_t> first = context_.side.lines.Beside(std::nullopt, 1);
    for (std::optional<std::size_t> line = first; line; line = context_.side.lines.Beside(line, 1))
        if (!list_.Lines()[*line].Reviewed)
            return line;
    return first;
}

void ReviewSession::FlipBox(int row) {
    BoxSelected(row);
    form_.FlipBox(row);
}

void ReviewSession::FlipInGroup(int row, int n) {
    const int found = HasForm() ? RowInGroup(*form_.Form(), row, n) : 0;
    if (found == 0)
        return;
    context_.rows.SelectRow(found);
    FlipBox(found);
}

void ReviewSession::BoxSelected(int row) {
    if (HasForm())
        context_.page.Emphasise(row);
}

bool ReviewSession::NextDoubt(int row) {
    int next = form_.NextDoubtful(row);
    if (next <= row || next == 0) {  // none, or one before: the other forms come first
        const std::optional<std::size_t> line = NextInDoubt();
        if (line) {
            if (!MayLeave())
                return false;
            Open(*line);
            next = form_.NextDoubtful(0);
        }
    }
    if (next == 0)
        context_.person.SetPanel(Panel::Message,
                                 list_.IsCounted()
                                     ? "No form of the list has a box in doubt."
                                     : "No box in doubt was found yet; forms are still being looked at.");
    return ShowDoubt(next);
}

bool ReviewSession::ShowDoubt(int row) {
    if (row == 0)
        return false;
    context_.rows.SelectRow(row);
    context_.page.ShowLarge(row);
    return true;
}

// From below the open form round the end of the list. So many forms that are not counted are read on the way
// that the person need not wait long; the others are being counted meanwhile.
std::optional<std::size_t> ReviewSession::NextInDoubt() {
    constexpr int kMostCounted = 100;
    const std::optional<std::size_t> open = OpenLine();
    std::optional<std::size_t> line = context_.side.lines.Beside(open, 1);
    int counted = 0;
    for (std::size_t tries = 0; tries < list_.Lines().size() && counted < kMostCounted; ++tries) {
        if (!line)
            line = context_.side.lines.Beside(std::nullopt, 1);
        if (!line || line == open)
            return std::nullopt;
        counted += list_.IsUncounted(list_.Lines()[*line]) ? 1 : 0;
        if (list_.CountOf(*line) > 0 && form_.OpensUnasked(list_.Lines()[*line].Document))
            return line;
        line = context_.side.lines.Beside(line, 1);
    }
    return std::nullopt;
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
    below_ = DocumentBeside(line, 1);
    const std::string near = DocumentNear(line);
    list_.Remove(move.Document);
    form_.Close();
    SelectDocument(near);
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
        SelectDocument(back.Document);
        OpenUnasked(*line);
    }
}

bool ReviewSession::GoOn() {
    const std::optional<std::size_t> line =
        HasForm() ? context_.side.lines.Beside(OpenLine(), 1) : list_.IndexOf(below_);
    if (!line)
        return false;
    OpenUnasked(*line);
    return OpenLine() == line && ShowDoubt(form_.NextDoubtful(0));
}

void ReviewSession::OpenUnasked(std::size_t line) {
    if (form_.OpensUnasked(list_.Lines()[line].Document))
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
        context_.person.ShowMessage("", app::ReasonOf(error));
    }
}

}  // namespace tavrene::review
