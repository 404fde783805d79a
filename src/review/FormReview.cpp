#include "review/FormReview.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "recognition/MarkReading.h"
#include "review/BoxMatching.h"

namespace tavrene::review {
namespace {

using app::Panel;
using imaging::RectStyle;
using profiles::ProfileRecord;
using recognition::BoxShift;
using recognition::ResultMark;

RectStyle StyleOf(const ResultMark& mark) {
    return mark.Checked ? RectStyle::Checked : RectStyle::Unchecked;
}

const char* ValOf(const ResultMark& mark) {
    return mark.Checked ? "1" : "0";
}

std::string InkText(const FormBox& box) {
    if (!box.ink)
        return {};
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f%%", *box.ink);
    return text.data();
}

int CountChecked(const std::vector<ResultMark>& marks) {
    return static_cast<int>(
        std::count_if(marks.begin(), marks.end(), [](const ResultMark& mark) { return mark.Checked; }));
}

}  // namespace

FormReview::FormReview(const ReviewContext& context, const app::Settings& settings,
                       const app::WorkingFolders& folders, const std::vector<ProfileRecord>& profiles,
                       ReviewList& list)
    : context_(context),
      settings_(settings),
      folders_(folders),
      profiles_(profiles),
      list_(list),
      loader_(context.files, context.log, context.person, folders.Temp) {}

const ProfileRecord* FormReview::FindProfile(const std::string& name) const {
    const auto found = std::find_if(profiles_.begin(), profiles_.end(),
                                    [&name](const ProfileRecord& profile) { return profile.Name == name; });
    return found == profiles_.end() ? nullptr : &*found;
}

void FormReview::Open(const std::string& document) {
    form_.reset();
    ClearBoxes();
    context_.person.SetPanel(Panel::Message, "");
    context_.person.SetPanel(Panel::ElapsedTime, "");
    try {
        OpenForm form;
        form.Name = app::BaseName(document);
        form.Document = document;
        form.Result = recognition::ResultDocument::Load(context_.files, folders_.ProcessOut + document);
        if (Prepare(form)) {
            form_ = std::move(form);
            context_.choice.SetChoice(form_->Profile.Name);
            ShowState(*form_);
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
    form.CheckedCount = CountChecked(form.Marks);
    Measure(form);
    DrawBoxes(form);
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
            DrawSkipped(form);
            return true;
        case app::Answer::Cancel:
            break;
    }
    return false;
}

void FormReview::ShowImage(const std::string& image) {
    const std::string path = folders_.ProcessOut + image;
    hasPage_ = loader_.LoadImage(path);
    const std::string type = app::UpperCase(app::Extension(image));
    if (!hasPage_) {
        context_.page.Clear();
    } else if (type == "PNG" || type == "TIF") {
        if (type == "PNG")
            WriteDisplayCopy();
        context_.page.ShowPicture(loader_.CurrentPage().bitmap);
    } else {
        // With the greys and colours that the page in memory has lost.
        context_.page.ShowFile(path);
    }
}

// The copy serves other programs only, so one that cannot be written is not missed.
void FormReview::WriteDisplayCopy() {
    try {
        context_.files.Write(folders_.Temp + "temp.tif",
                             imaging::EncodeGroup4Tiff(loader_.CurrentPage().bitmap), app::Keep::AsScratch);
    } catch (const app::FileError&) {
    }
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

// Reads all boxes of `profile` at the shifts of the document as it was opened, and rewrites the document.
// What was read against another profile in between may have lost them. False when there is no page to read;
// the form changes only when all is done.
bool FormReview::ReadAnew(OpenForm& form, const ProfileRecord& profile) {
    if (!hasPage_)
        return false;
    const std::vector<BoxShift> shifts = ShiftsOfBoxes(profile, form.Opened);
    const std::vector<recognition::MarkReading> readings =
        ReadMarks(loader_.CurrentPage(), profile, shifts, settings_.FillThreshold);
    recognition::ResultDocument rewritten = form.Result.Clone();
    rewritten.Rewrite(profile.Name, readings);
    rewritten.Save(context_.files, folders_.ProcessOut + form.Document);
    form.Result = std::move(rewritten);
    form.Profile = profile;
    form.Marks = form.Result.Marks();
    form.CheckedCount = CountChecked(form.Marks);
    form.SkippedRects.clear();
    form.Skipped = 0;
    form.Boxes.clear();
    for (const recognition::MarkReading& reading : readings)
        form.Boxes.push_back(Measured(reading.rect, reading.fill));
    DrawBoxes(form);
    list_.Change(form.Document, form.Result.IsReviewed(), form.Result.Confidence());
    list_.ShowCounts();
    return true;
}

// Finds place and ink of every box that both document and profile have, and the boxes that only the profile
// has.
void FormReview::Measure(OpenForm& form) const {
    form.Boxes.assign(form.Marks.size(), {});
    const std::vector<BoxShift> shifts = ShiftsOfBoxes(form.Profile, form.Marks);
    const std::vector<std::optional<std::size_t>> marks = MarksOfBoxes(form.Profile, form.Marks);
    for (std::size_t k = 0; k < marks.size(); ++k) {
        form.Skipped += marks[k] ? 0 : 1;
        if (!hasPage_)
            continue;
        const recognition::BoxMeasure measure = MeasureBox(loader_.CurrentPage(), form.Profile, k, shifts[k]);
        if (marks[k])
            form.Boxes[*marks[k]] = Measured(measure.rect, measure.fill);
        else
            form.SkippedRects.push_back(measure.rect);
    }
}

// Within a third of the threshold.
FormBox FormReview::Measured(const imaging::PageRect& rect, std::optional<double> ink) const {
    const double threshold = settings_.FillThreshold;
    return {rect, ink, ink && std::abs(*ink - threshold) * 3 <= threshold};
}

void FormReview::DrawBoxes(const OpenForm& form) {
    context_.page.ClearRects();
    context_.rows.ClearRows(profiles::BoxColumns::NameValInk);
    for (std::size_t number = 1; number <= form.Marks.size(); ++number)
        DrawBox(form, number);
}

// Row and rectangle of box `number`, from 1.
void FormReview::DrawBox(const OpenForm& form, std::size_t number) {
    const ResultMark& mark = form.Marks[number - 1];
    const FormBox& box = form.Boxes[number - 1];
    const int group = static_cast<int>(number);
    context_.rows.PutRow(group, {mark.Name, ValOf(mark), InkText(box), box.isDoubtful});
    if (box.rect)
        context_.page.PutRect(group, *box.rect, StyleOf(mark));
}

// Their groups follow those of the rows, so that no row answers for them.
void FormReview::DrawSkipped(const OpenForm& form) {
    int group = static_cast<int>(form.Marks.size());
    for (const imaging::PageRect& rect : form.SkippedRects)
        context_.page.PutRect(++group, rect, RectStyle::Skipped);
}

void FormReview::ClearBoxes() {
    context_.page.ClearRects();
    context_.rows.ClearRows(profiles::BoxColumns::Name);
}

void FormReview::TakeOffScreen() {
    hasPage_ = false;
    context_.page.Clear();
    ClearBoxes();
    context_.choice.SetChoice("");
}

void FormReview::Close() {
    if (!form_)
        return;
    form_.reset();
    TakeOffScreen();
    context_.person.SetPanel(Panel::Message, "");
    context_.person.SetPanel(Panel::ElapsedTime, "");
}

void FormReview::ShowState(const OpenForm& form) {
    context_.person.SetPanel(Panel::Message,
                             "Image [" + form.Result.Image() + "], Profile [" + form.Profile.Name + "]");
    const std::string count = std::to_string(form.Profile.Boxes.size());
    context_.person.SetPanel(Panel::ElapsedTime,
                             form.Skipped == 0 ? "OMRs:" + count
                                               : "Checked:" + std::to_string(form.CheckedCount) + " of " +
                                                     count + " Skip:" + std::to_string(form.Skipped));
}

void FormReview::FlipBox(int number) {
    if (!form_ || number < 1 || static_cast<std::size_t>(number) > form_->Marks.size())
        return;
    ResultMark& mark = form_->Marks[static_cast<std::size_t>(number) - 1];
    mark.Checked = !mark.Checked;
    DrawBox(*form_, static_cast<std::size_t>(number));
    form_->CheckedCount += mark.Checked ? 1 : -1;
    form_->Changed = true;
    context_.person.SetPanel(Panel::ElapsedTime, "Checked:" + std::to_string(form_->CheckedCount) + " of " +
                                                     std::to_string(form_->Marks.size()));
}

void FormReview::ReadAgainst(const std::string& profileName) {
    if (!form_ || profileName == form_->Profile.Name)
        return;
    const std::string image = form_->Result.Image();
    try {
        const ProfileRecord* const profile = FindProfile(profileName);
        hasPage_ = profile != nullptr && loader_.LoadImageForProcessing(folders_.ProcessOut + image);
        if (profile != nullptr && ReadAnew(*form_, *profile)) {
            form_->Changed = true;
            ShowState(*form_);
            context_.person.SetPanel(Panel::Message, image + " [" + profileName + "]");
        }
    } catch (...) {
        context_.choice.SetChoice(form_->Profile.Name);
        throw;
    }
    context_.choice.SetChoice(form_->Profile.Name);
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
