#include "review/Decisions.h"

#include <utility>

namespace tavrene::review {

Decisions::Decisions(const ReviewContext& context, const app::WorkingFolders& folders, ReviewList& list)
    : context_(context), folders_(folders), list_(list), mover_(context.files, folders) {}

void Decisions::Save(OpenForm& form) {
    recognition::ResultDocument saved = form.Result.Clone();
    saved.SetReviewed(true);
    saved.SetProfile(form.Profile.Name);
    if (form.Profile.Name == form.SavedProfile)
        saved.SetChecked(form.Marks);
    else
        saved.ReplaceMarks(form.Marks);
    saved.Save(context_.files, folders_.ProcessOut + form.Document);
    form.Result = std::move(saved);
    form.SavedProfile = form.Profile.Name;
    form.Changed = false;
    list_.Change(form.Document, true, form.Result.Confidence());
    context_.log.LogProcessEvent("Reviewed & Saved [" + form.Name + "]");
    list_.ShowCounts();
}

bool Decisions::OfferSave(OpenForm& form) {
    if (!form.Changed)
        return true;
    const app::Answer answer = context_.person.AskYesNoCancel("Save changes to Form <" + form.Name + ">?");
    if (answer == app::Answer::Yes)
        Save(form);
    return answer != app::Answer::Cancel;
}

// What an earlier decision left half done is settled first: there is one note for all moves.
FormMove Decisions::MoveForm(const OpenForm& form, Decision decision) {
    SettleInterrupted();
    FormMove move{decision, form.Result.Image(), form.Document};
    mover_.Move(move);
    list_.Remove(move.Document);
    return move;
}

void Decisions::LogDecision(const FormMove& move) {
    const char* const word = move.decision == Decision::Accept ? "accepted." : "rejected.";
    context_.log.LogProcessEvent("Form [" + app::BaseName(move.Document) + "] " + word);
    mover_.Forget();
}

void Decisions::SettleInterrupted() {
    if (const std::optional<FormMove> done = mover_.Settle())
        LogDecision(*done);
}

}  // namespace tavrene::review
