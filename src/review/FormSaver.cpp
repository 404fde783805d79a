#include "review/FormSaver.h"

#include <utility>

#include "review/FormReading.h"

namespace tavrene::review {

void FormSaver::Save(OpenForm& form, bool isReviewed) {
    const std::vector<std::string> corrections = CorrectionsOf(form);
    Write(form, isReviewed);
    for (const std::string& correction : corrections)
        context_.log.LogProcessEvent(correction);
    list_.Change(form.Document, isReviewed, form.Result.Confidence());
    if (isReviewed)
        TellReviewed(form);
}

void FormSaver::Write(OpenForm& form, bool isReviewed) {
    const std::string path = folders_.ProcessOut + form.Document;
    recognition::ResultDocument saved = form.Result.Clone();
    saved.SetReviewed(isReviewed);
    saved.SetProfile(form.Profile.Name);
    if (form.Profile.Name == form.SavedProfile)
        saved.SetChecked(form.Marks);
    else
        saved.ReplaceMarks(form.Marks);
    saved.Save(context_.files, path);
    form.Result = std::move(saved);
    form.Fingerprint = context_.files.Fingerprint(path);
    form.SavedProfile = form.Profile.Name;
    form.Before.reset();
    form.Changed = false;
}

void FormSaver::TellReviewed(const OpenForm& form) {
    context_.log.LogProcessEvent("Reviewed & Saved [" + form.Name + "]");
    context_.person.SetPanel(app::Panel::Message, "Saved Form: " + form.Name);
    list_.ShowCounts();
}

}  // namespace tavrene::review
