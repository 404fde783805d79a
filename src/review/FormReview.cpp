#include "review/FormReview.h"

#include <algorithm>
#include <utility>

#include "recognition/PageLoading.h"
#include "recognition/RunSummary.h"
#include "review/BoxMatching.h"
#include "review/FormReading.h"

namespace tavrene::review {

using profiles::ProfileRecord;

FormReview::FormReview(const ReviewContext& context, const app::Settings& settings,
                       const app::WorkingFolders& folders, const std::vector<ProfileRecord>& profiles,
                       ReviewList& list)
    : context_(context),
      settings_(settings),
      folders_(folders),
      profiles_(profiles),
      list_(list),
      screen_(context),
      saver_(context, folders, list),
      scratch_(context.files, folders.Temp) {}

const ProfileRecord* FormReview::FindProfile(const std::string& name) const {
    const auto found = std::find_if(profiles_.begin(), profiles_.end(),
                                    [&name](const ProfileRecord& profile) { return profile.Name == name; });
    return found == profiles_.end() ? nullptr : &*found;
}

std::vector<profiles::BoxGroup> FormReview::GroupsOf(const ProfileRecord& profile) const {
    return profiles::GroupsOrNone(context_.files, folders_.Profiles + profile.FileName,
                                  profiles::NamesOf(profile));
}

void FormReview::Open(const std::string& document) {
    form_.reset();
    context_.person.ShowNotices({});
    screen_.ClearBoxes();
    screen_.ClearPanels();
    try {
        OpenForm form;
        form.Name = app::BaseName(document);
        form.Document = document;
        form.Fingerprint = context_.files.Fingerprint(PathOf(form));
        form.Result = recognition::ResultDocument::Load(context_.files, PathOf(form));
        if (Prepare(form)) {
            form_ = std::move(form);
            context_.side.choice.SetChoice(form_->Profile.Name);
            screen_.ShowState(*form_);
        } else {
            TakeOffScreen();
        }
    } catch (...) {
        TakeOffScreen();
        throw;
    }
}

// False when the opening ends here.
bool FormReview::Prepare(OpenForm& form) {
    if (!HasImage(form))
        return false;
    ShowImage(form.Result.Image());
    const ProfileRecord* const profile = FindProfile(form.Result.Profile());
    if (profile == nullptr)
        return KeepWithoutProfile(form);
    TakeDocument(form, *profile, GroupsOf(*profile));
    if (page_)
        FindLostShifts(form, *page_, settings_.FillThreshold, context_.precise);
    MeasureForm(form, page_ ? &*page_ : nullptr, settings_.FillThreshold, context_.precise);
    screen_.ShowBoxes(form);
    return form.Skipped == 0 || SettleDifferences(form);
}

bool FormReview::OpensUnasked(const std::string& document) const {
    const auto result = recognition::ResultDocument::Load(context_.files, folders_.ProcessOut + document);
    const ProfileRecord* const profile = FindProfile(result.Profile());
    if (profile == nullptr || !context_.files.FileExists(folders_.ProcessOut + result.Image()))
        return false;
    return std::ranges::all_of(MarksOfBoxes(*profile, result.Marks()),
                               [](const auto& mark) { return mark.has_value(); });
}

// Its marks can be listed and decided about; where its boxes lie nobody knows any more.
bool FormReview::KeepWithoutProfile(OpenForm& form) {
    const std::string profile = form.Result.Profile();
    if (context_.person.AskYesNo("The profile " + profile +
                                     " no longer exists. Re-evaluate?\nSelecting Yes will move the image to "
                                     "ProcessIn Dir...",
                                 app::Answer::No) == app::Answer::Yes) {
        SendBack(form);
        return false;
    }
    TakeDocument(form, {}, {});
    form.Profile.Name = profile;
    form.HasProfile = false;
    form.Boxes.assign(form.Marks.size(), {});
    screen_.ShowBoxes(form);
    return true;
}

bool FormReview::HasImage(const OpenForm& form) {
    const std::string image = form.Result.Image();
    if (context_.files.FileExists(folders_.ProcessOut + image))
        return true;
    context_.log.LogProcessEvent("File " + image + " referred by " + form.Document + " was not found.");
    return false;
}

bool FormReview::SettleDifferences(OpenForm& form) {
    switch (
        context_.person.AskYesNoCancel("The profile has changed. Re-evaluate using the new profile?\n"
                                       "Selecting No would keep the same profile but skip the modified "
                                       "fields.",
                                       app::Answer::No)) {
        case app::Answer::Yes:
            return ReadAnew(form, ProfileRecord(form.Profile));
        case app::Answer::No:
            screen_.ShowSkipped(form);
            return true;
        case app::Answer::Cancel:
            break;
    }
    return false;
}

void FormReview::ShowImage(const std::string& image) {
    const std::string path = folders_.ProcessOut + image;
    page_ = recognition::LoadPage(context_.files, context_.log, context_.person, path);
    const std::string type = app::UpperCase(app::Extension(image));
    if (type == "PNG" && page_)
        LogFailure(path, scratch_.WriteConverted(*page_));
    if (!page_)
        context_.page.Clear();
    else if (type == "PNG" || type == "TIF")
        context_.page.ShowPicture(page_->bitmap);
    else
        context_.page.ShowFile(path);  // with the greys and colours that the page in memory has lost
}

void FormReview::LogFailure(const std::string& image, const std::string& failure) {
    if (!failure.empty())
        context_.log.LogProcessEvent(app::FileName(image) + ": " + failure);
}

void FormReview::SendBack(const OpenForm& form) {
    const std::string image = form.Result.Image();
    const std::string waiting = folders_.ProcessIn + image;
    const bool replaces = context_.files.FileExists(waiting);
    context_.files.Move(folders_.ProcessOut + image, waiting);
    context_.log.LogProcessEvent("Image [" + image + "] " + std::string(recognition::said::kSentBack) +
                                 folders_.ProcessIn +
                                 (replaces ? " in place of the waiting file of that name" : ""));
    context_.files.Delete(PathOf(form));
    list_.Remove(form.Document);
    list_.ShowCounts();
}

bool FormReview::MayOverwrite(const OpenForm& form) {
    const std::string onDisk = context_.files.Fingerprint(PathOf(form));
    return onDisk.empty() || onDisk == form.Fingerprint ||
           context_.person.AskYesNo(
               "The document " + PathOf(form) +
                   " was changed by somebody else after it was opened here. Write over it?",
               app::Answer::No) == app::Answer::Yes;
}

void FormReview::ShowInList(const OpenForm& form) {
    list_.Change(form.Document, form.Result.IsReviewed(), form.Result.Confidence());
    list_.ShowCounts();
}

// Rewrites the document. False when there is no page to read, or the document is not to be rewritten; the
// form changes only when all is done.
bool FormReview::ReadAnew(OpenForm& form, const ProfileRecord& profile) {
    if (!page_ || !MayOverwrite(form))
        return false;
    OpenForm read =
        ReadForm(form, *page_, profile, GroupsOf(profile), settings_.FillThreshold, context_.precise);
    read.Result.Save(context_.files, PathOf(form));
    read.Fingerprint = context_.files.Fingerprint(PathOf(form));
    context_.log.LogProcessEvent("Form [" + form.Name + "] read again as [" + profile.Name + "]");
    form = std::move(read);
    screen_.ShowBoxes(form);
    ShowInList(form);
    return true;
}

bool FormReview::Save() {
    if (!MayOverwrite(*form_))
        return false;
    saver_.SaveReviewed(*form_);
    return true;
}

// A document that has gone in the meantime is not brought back.
void FormReview::DropChanges() {
    if (!form_->Before)
        return;
    const std::string path = PathOf(*form_);
    if (context_.files.FileExists(path) && MayOverwrite(*form_)) {
        context_.files.Write(path, *form_->Before);
        form_->Result = recognition::ResultDocument::Load(context_.files, path);
        form_->Fingerprint = context_.files.Fingerprint(path);
        context_.log.LogProcessEvent("Form [" + form_->Name + "] put back as it was before");
        ShowInList(*form_);
    }
    form_->Before.reset();
}

void FormReview::TakeOffScreen() {
    page_.reset();
    screen_.Clear();
}

void FormReview::Close() {
    if (!form_)
        return;
    form_.reset();
    TakeOffScreen();
    screen_.ClearPanels();
}

void FormReview::FlipBox(int number) {
    if (!form_ || number < 1 || static_cast<std::size_t>(number) > form_->Marks.size())
        return;
    bool& isChecked = form_->Marks[static_cast<std::size_t>(number) - 1].Checked;
    isChecked = !isChecked;
    form_->Changed = true;
    screen_.ShowMark(*form_, number);
}

void FormReview::ReadAgainst(const std::string& profileName) {
    if (!form_ || profileName == form_->Profile.Name)
        return;
    const std::string image = form_->Result.Image();
    try {
        const ProfileRecord* const profile = FindProfile(profileName);
        if (profile != nullptr && LoadForProcessing(*form_)) {
            std::optional<app::Bytes> before = DocumentBefore(*form_);
            if (ReadAnew(*form_, *profile)) {
                form_->Before.swap(before);
                form_->Changed = true;
                screen_.ShowState(*form_);
                context_.person.SetPanel(app::Panel::Message, image + " [" + profileName + "]");
            }
        }
    } catch (...) {
        context_.side.choice.SetChoice(form_->Profile.Name);
        throw;
    }
    context_.side.choice.SetChoice(form_->Profile.Name);
}

// The document as it was before it was read against another profile for the first time.
std::optional<app::Bytes> FormReview::DocumentBefore(const OpenForm& form) const {
    if (form.Before || !context_.files.FileExists(PathOf(form)))
        return form.Before;
    return context_.files.Read(PathOf(form));
}

// As a run loads it, with the display copies.
bool FormReview::LoadForProcessing(const OpenForm& form) {
    const std::string path = folders_.ProcessOut + form.Result.Image();
    page_.reset();
    if (!HasImage(form)) {
        context_.person.ShowMessage("", "The image " + path + " was not found.");
        return false;
    }
    page_ = recognition::LoadPage(context_.files, context_.log, context_.person, path);
    if (page_)
        LogFailure(path, scratch_.WritePage(*page_));
    return page_.has_value();
}

int FormReview::NextDoubtful(int number) const {
    const int count = form_ ? static_cast<int>(form_->Boxes.size()) : 0;
    for (int step = 1; step <= count; ++step) {
        const int next = (std::max(number, 0) + step - 1) % count + 1;
        if (form_->Boxes[static_cast<std::size_t>(next) - 1].doubt)
            return next;
    }
    return 0;
}

}  // namespace tavrene::review
