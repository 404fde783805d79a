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
      runDoubts_(context.files, settings, folders, profiles, context.precise),
      list_(context, folders, doubts_),
      form_(context, settings, folders, profiles, list_),
      decisions_(context.files, context.log, folders),
      sheet_(context, folders, profiles, list_, doubts_),
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
    doubts_.Keep();
    runDoubts_.Begin();
}

void ReviewSession::RunEnds() {
    runDoubts_.End();
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
    const std::optional<std::size_t> from = selected ? selected : OpenLine();
    const bool isTried =
        selected && *selected < list_.Lines().size() && list_.Lines()[*selected].Document == tried_;
    if (from && from != OpenLine() && !isTried && step > 0)
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

bool ReviewSession::NextDoubt(int row, const WorkWatch& goesOn) {
    int next = form_.NextDoubtful(row);
    if (next <= row || next == 0) {  // none, or one before: the other forms come first
        const NextInDoubt found = FindNextInDoubt(
            list_, context_.side.lines, OpenLine(), [this](std::size_t line) { return MayOpen(line); },
            goesOn);
        if (found.line) {
            if (!MayLeave())
                return false;
            Open(*found.line);
            next = form_.NextDoubtful(0);
        } else if (next == 0) {
            context_.person.SetPanel(Panel::Message, TextOfNone(found));
        }
    }
    return ShowDoubt(next);
}

bool ReviewSession::ShowDoubt(int row) {
    if (row == 0)
        return false;
    context_.rows.SelectRow(row);
    context_.page.ShowLarge(row);
    return true;
}

// A document that has gone or is damaged by now must not keep the person from the others.
bool ReviewSession::MayOpen(std::size_t line) const {
    try {
        return form_.OpensUnasked(list_.Lines()[line].Document);
    } catch (const std::exception&) {
        return false;
    }
}

void ReviewSession::CountAllDoubts(const WorkWatch& goesOn) {
    const std::size_t total = list_.Uncounted();
    for (std::size_t done = 0; done < total && goesOn(done, total) && list_.CountNext(); ++done) {
    }
}

void ReviewSession::OpenAt(const std::string& document, int row) {
    const std::optional<std::size_t> line = list_.IndexOf(document);
    if (!line)
        return;
    if (row == 0)
        OpenUnasked(*line);
    else
        Open(*line);
    if (OpenLine() == line)
        ShowDoubt(row);
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

void ReviewSession::FollowFolder() {
    if (!IsOn())
        return;
    list_.Follow();
    FollowUnread();
}

void ReviewSession::Decide(Decision decision) {
    const std::string document = form_.Form()->Document;
    decisions_.Begin();
    decisions_.Move({decision, form_.Form()->Result.Image(), document});
    const std::size_t line = OpenLine().value_or(0);
    below_ = DocumentBeside(line, 1);
    const std::string near = DocumentNear(line);
    list_.Remove(document);
    form_.Close();
    SelectDocument(near);
    list_.ShowCounts();
}

ClearForms ReviewSession::FindClear() const {
    ClearForms found;
    std::size_t shown = 0;
    for (auto at = context_.side.lines.Beside(std::nullopt, 1); at; at = context_.side.lines.Beside(at, 1)) {
        found.Add(list_.Lines()[*at]);
        ++shown;
    }
    found.hidden = list_.Lines().size() - shown;
    return found;
}

std::vector<std::string> ReviewSession::AcceptAll(const ClearForms& forms, const WorkWatch& goesOn) {
    decisions_.Begin();
    std::vector<std::string> failures;
    const std::size_t total = forms.documents.size();
    for (std::size_t done = 0; done < total && goesOn(done, total); ++done) {
        const std::string& document = forms.documents[done];
        try {
            list_.RequireAsItWas(document);
            decisions_.Move({Decision::Accept, app::FileName(list_.FormOf(document).Image), document});
            if (HasForm() && form_.Form()->Document == document)
                form_.Close();
            list_.Remove(document);
        } catch (const app::FileError& error) {
            failures.emplace_back(error.what());
        }
    }
    list_.ShowCounts();
    return failures;
}

void ReviewSession::UndoDecision(const WorkWatch& goesOn) {
    const Decisions::TakenBack back = decisions_.TakeBack(goesOn);
    if (!back.documents.empty()) {
        form_.Close();
        list_.Follow();
        if (const std::optional<std::size_t> line = list_.IndexOf(back.documents.front())) {
            SelectDocument(back.documents.front());
            if (back.documents.size() == 1)
                OpenUnasked(*line);
        }
    }
    if (!back.failures.empty())
        throw app::FileError(TextOfFailures(back.failures));
}

bool ReviewSession::GoOn() {
    const std::optional<std::size_t> line =
        HasForm() ? context_.side.lines.Beside(OpenLine(), 1) : list_.IndexOf(below_);
    if (!line)
        return false;
    context_.side.lines.SelectLine(*line);
    OpenUnasked(*line);
    return OpenLine() == line && ShowDoubt(form_.NextDoubtful(0));
}

void ReviewSession::OpenUnasked(std::size_t line) {
    if (MayOpen(line))
        Open(line);
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
