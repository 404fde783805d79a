#include "review/FormReview.h"

#include <algorithm>
#include <utility>

#include "recognition/PageLoading.h"
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
      scratch_(context.files, folders.Temp) {}

const ProfileRecord* FormReview::FindProfile(const std::string& name) const {
    const auto found = std::find_if(profiles_.begin(), profiles_.end(),
                                    [&name](const ProfileRecord& profile) { return profile.Name == name; });
    return found == profiles_.end() ? nullptr : &*found;
}

void FormReview::Open(const std::string& document) {
    form_.reset();
    screen_.ClearBoxes();
    screen_.ClearPanels();
    try {
        OpenForm form;
        form.Name = app::BaseName(document);
        form.Document = document;
        form.Result = recognition::ResultDocument::Load(context_.files, folders_.ProcessOut + document);
        if (Prepare(form)) {
            form_ = std::move(form);
            context_.choice.SetChoice(form_->Profile.Name);
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
    const std::string image = form.Result.Image();
    if (!context_.files.FileExists(folders_.ProcessOut + image)) {
        context_.log.LogProcessEvent("File " + image + " referred by " + form.Document + " was not found.");
        return false;
    }
    ShowImage(image);
    const std::string profileName = form.Result.Profile();
    const ProfileRecord* const profile = FindProfile(profileName);
    if (profile == nullptr) {
        if (context_.person.AskYesNo("The profile " + profileName +
                                     " no longer exists. Re-evaluate?\nSelecting Yes will move the image to "
                                     "ProcessIn Dir...") == app::Answer::Yes)
            SendBack(form);
        return false;
    }
    form.Profile = *profile;
    form.SavedProfile = profileName;
    form.Opened = form.Result.Marks();
    form.Marks = form.Opened;
    MeasureForm(form, page_ ? &*page_ : nullptr, settings_.FillThreshold);
    screen_.ShowBoxes(form);
    return form.Skipped == 0 || SettleDifferences(form);
}

bool FormReview::SettleDifferences(OpenForm& form) {
    switch (
        context_.person.AskYesNoCancel("The profile has changed. Re-evaluate using the new profile?\n"
                                       "Selecting No would keep the same profile but skip the modified "
                                       "fields.")) {
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
    if (replaces)
        context_.log.LogProcessEvent("Image [" + image + "] replaces the waiting file " + waiting);
    context_.files.Delete(folders_.ProcessOut + form.Document);
    list_.Remove(form.Document);
    list_.ShowCounts();
}

// Rewrites the document. False when there is no page to read; the form changes only when all is done.
bool FormReview::ReadAnew(OpenForm& form, const ProfileRecord& profile) {
    if (!page_)
        return false;
    OpenForm read = ReadForm(form, *page_, profile, settings_.FillThreshold);
    read.Result.Save(context_.files, folders_.ProcessOut + form.Document);
    form = std::move(read);
    screen_.ShowBoxes(form);
    list_.Change(form.Document, form.Result.IsReviewed(), form.Result.Confidence());
    list_.ShowCounts();
    return true;
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
        if (profile != nullptr)
            LoadForProcessing(folders_.ProcessOut + image);
        if (profile != nullptr && ReadAnew(*form_, *profile)) {
            form_->Changed = true;
            screen_.ShowState(*form_);
            context_.person.SetPanel(app::Panel::Message, image + " [" + profileName + "]");
        }
    } catch (...) {
        context_.choice.SetChoice(form_->Profile.Name);
        throw;
    }
    context_.choice.SetChoice(form_->Profile.Name);
}

// As a run loads it, with the display copies.
void FormReview::LoadForProcessing(const std::string& path) {
    page_ = recognition::LoadPage(context_.files, context_.log, context_.person, path);
    if (page_)
        LogFailure(path, scratch_.WritePage(*page_));
}

int FormReview::NextDoubtful(int number) const {
    const int count = form_ ? static_cast<int>(form_->Boxes.size()) : 0;
    for (int step = 1; step <= count; ++step) {
        const int next = (std::max(number, 0) + step - 1) % count + 1;
        if (form_->Boxes[static_cast<std::size_t>(next) - 1].isDoubtful)
            return next;
    }
    return 0;
}

}  // namespace tavrene::review
