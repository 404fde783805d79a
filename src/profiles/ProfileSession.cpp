#include "profiles/ProfileSession.h"

#include <optional>
#include <utility>
#include <variant>

#include "app/Reason.h"
#include "boxes/ProfileImagePipeline.h"
#include "profiles/OmrsOfBoxes.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

using app::Answer;
using app::Panel;

constexpr const char* kSpecimen = "specimen";
constexpr const char* kLocate = "Locate...";
constexpr const char* kGroups = "groups";
constexpr const char* kImageFilter = "Image Files (*.Tif;*.Jpg;*.Png)|*.Tif;*.Jpg;*.Png";

}  // namespace

ProfileSession::ProfileSession(const ProfileContext& context, std::vector<ProfileRecord>& records,
                               const ProfileScreen& screen)
    : context_(context),
      screen_(screen),
      records_(records),
      editor_(profile_, context.person, screen),
      profiles_(context.files, context.log, context.person, context.folders.Profiles),
      specimen_(context.files, screen.page, context.folders.Temp),
      thumbnails_(context.files, context.log, context.person, context.folders.Profiles) {}

bool ProfileSession::MayLeave() {
    DropNotes();
    if (!profile_.ProfileChanged)
        return true;
    switch (context_.person.AskYesNoCancel("Save changes to Profile <" + profile_.Path + ">?", Answer::Yes)) {
        case Answer::Yes:
            return Write();
        case Answer::No:
            editor_.ClearChanged();
            return true;
        default:
            return false;
    }
}

void ProfileSession::New(const boxes::BoxSizes& sizes, const boxes::PairReach& reach) {
    const std::optional<std::string> path =
        context_.dialogs.AskSaveFile({"New Profile", context_.folders.Profiles, "New.Tvp", kProfileFilter});
    if (!path)
        return;
    const std::optional<std::string> image = context_.dialogs.AskOpenFile(
        {"Image of the Blank Form", context_.folders.ProfileImages, "", kImageFilter});
    if (!image) {
        screen_.page.Clear();
        return;
    }
    try {
        if (!Create(*path, *image, sizes, reach))
            ShowPanels();
    } catch (...) {
        ShowPanels();
        throw;
    }
}

bool ProfileSession::Create(const std::string& path, const std::string& image, const boxes::BoxSizes& sizes,
                            const boxes::PairReach& reach) {
    const std::string name = app::BaseName(path);
    const std::string copyFailure = specimen_.KeepOriginal(image);
    const std::optional<boxes::FoundBoxes> found = boxes::FindBoxesOnImage(
        image, name, sizes, reach, {context_.files, context_.person, context_.log, context_.clock});
    if (!found)
        return false;
    Take(path, profiles_.Create(path, {name, image, found->DPI_X, found->DPI_Y, true},
                                OmrsOfBoxes(found->Boxes, found->Height)));
    DeleteBoxGroups(context_.files, path);
    const ProfileContent content = ReadProfileContent(profile_.Document);
    Describe(content);
    Note(copyFailure);
    ShowSpecimen(true);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
    RebuildStrip();
    context_.person.SetPanel(Panel::Message, std::to_string(content.Count) + " OMR Boxes identified");
    if (app::Notice offer = context_.offerMore ? context_.offerMore() : app::Notice(); !offer.text.empty())
        notes_.push_back(std::move(offer));
    TellIfOutside();
    return true;
}

void ProfileSession::TellIfOutside() {
    if (profile_.CurrentProfile == 0)
        lasting_.push_back({"The new profile lies outside the Profiles folder, so no run will use it."});
}

void ProfileSession::Open(const std::string& path) {
    if (path.empty())
        return;
    if (!context_.files.FileExists(path)) {
        RebuildStrip();
        context_.person.ShowMessage("", "The profile " + path + " is not there any more.");
        return;
    }
    screen_.strip.SelectThumbnail(profiles_.NumberOf(path));
    Load(path);
}

void ProfileSession::Load(const std::string& path) {
    Take(path, {});
    ShowPanels();
    profile_.Document = profiles_.Load(path);
    profile_.Image = profile_.Document.first_child().attribute("Image").value();
    context_.person.SetPanel(Panel::Message, HeadingOf(profile_));
    ProfileContent content;
    try {
        content = ReadProfileContent(profile_.Document);
    } catch (const DocumentError& error) {
        ShowSpecimen(false);
        RefuseToOpen(path, error);
    }
    Describe(content);
    ShowSpecimen(false);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
    ShowPanels();
    specimen_.Fit(profile_.ImageWidth);
}

// The document of that path comes to the desk; whatever stood there leaves it.
void ProfileSession::Take(const std::string& path, pugi::xml_document document) {
    Close();
    profile_.Path = path;
    profile_.Name = app::BaseName(path);
    profile_.CurrentProfile = profiles_.NumberOf(path);
    profile_.Fingerprint = context_.files.Fingerprint(path);
    profile_.Document = std::move(document);
}

void ProfileSession::Describe(const ProfileContent& content) {
    profile_.Image = content.Image;
    profile_.DPI_X = content.DPI_X.value_or(0);
    profile_.DPI_Y = content.DPI_Y.value_or(0);
    if (!content.DPI_X || !content.DPI_Y)
        lasting_.push_back(
            {"The document does not say the resolution of its image (DPI_X, DPI_Y), so runs leave it out."});
    profile_.Active = content.Active;
    try {
        profile_.SavedGroups = ReadBoxGroups(context_.files, profile_.Path);
        profile_.Groups = profile_.SavedGroups;
    } catch (const std::exception& error) {
        lasting_.push_back({.text = "The groups of this profile cannot be read, so names tell them: " +
                                    app::ReasonOf(error) + ". Setting groups and saving writes them anew.",
                            .topic = kGroups});
    }
}

void ProfileSession::ShowSpecimen(bool isNewProfile) {
    TakeShown(specimen_.Show(profile_.Image, isNewProfile));
}

void ProfileSession::TakeShown(const SpecimenShown& shown) {
    profile_.ImageWidth = shown.width;
    profile_.ImageHeight = shown.height;
    DropLasting(kSpecimen);
    if (!shown.missing.empty())
        lasting_.push_back({shown.missing, kLocate, [this] { Locate(); }, kSpecimen});
    Note(shown.copyFailure);
}

// Only the path changes in the file; unsaved boxes stay unsaved. There is no way back from a wrong image but
// to another one.
void ProfileSession::Locate() {
    const std::optional<std::string> image = context_.dialogs.AskOpenFile(
        {"Image of the Blank Form", context_.folders.ProfileImages, "", kImageFilter});
    if (!image)
        return;
    const std::string onDisk = context_.files.Fingerprint(profile_.Path);
    if (onDisk.empty()) {
        context_.person.ShowMessage("", "The file " + profile_.Path +
                                            " is not there any more. Save the profile, which writes it "
                                            "anew, and then locate its image.");
        return;
    }
    if (!MayOverwrite(onDisk))
        return;
    const auto read = imaging::ReadSpecimen(context_.files, *image);
    if (const auto* const error = std::get_if<imaging::PageError>(&read)) {
        context_.person.ShowMessage("", imaging::ReasonOf(*error));
        return;
    }
    profiles_.ChangeImage(profile_, *image);
    TakeShown(specimen_.Show(std::get<imaging::Page>(read), false));
    specimen_.Fit(profile_.ImageWidth);
    RebuildStrip();
    ShowPanels();
    DropNotes();
    notes_.push_back(
        {"The specimen image is " + *image + " now. Locate another one if the boxes do not fit it.", kLocate,
         [this] { Locate(); }});
}

bool ProfileSession::Save() {
    DropNotes();
    return Write();
}

bool ProfileSession::Write() {
    if (!profile_.IsOpen)
        return false;
    const std::string onDisk = context_.files.Fingerprint(profile_.Path);
    if (!MayOverwrite(onDisk))
        return false;
    if (const std::optional<int> unwritable = FindUnwritableName(profile_.BoxList))
        editor_.Select(*unwritable);
    profiles_.Save(profile_);
    SaveGroups();
    if (onDisk.empty())
        Note("The file " + profile_.Path + " had been deleted and was written anew");
    editor_.ClearChanged();
    RebuildStrip();
    context_.person.SetPanel(Panel::Message, "Saved Profile: " + profile_.Name);
    return true;
}

void ProfileSession::SaveGroups() {
    const bool isChanged = profile_.Groups != profile_.SavedGroups;
    if (profile_.Groups) {
        // Somebody may have deleted the file together with the document.
        if (!isChanged && context_.files.FileExists(BoxGroupsPath(profile_.Path)))
            return;
        WriteBoxGroups(context_.files, profile_.Path, *profile_.Groups);
        DropLasting(kGroups);
    } else if (isChanged) {
        DeleteBoxGroups(context_.files, profile_.Path);
    }
    profile_.SavedGroups = profile_.Groups;
}

void ProfileSession::DropLasting(const std::string& topic) {
    std::erase_if(lasting_, [&topic](const app::Notice& notice) { return notice.topic == topic; });
}

bool ProfileSession::MayOverwrite(const std::string& onDisk) {
    return onDisk.empty() || onDisk == profile_.Fingerprint ||
           context_.person.AskYesNo(
               "The file " + profile_.Path +
                   " was changed by somebody else after it was opened here. Save over it?",
               Answer::No) == Answer::Yes;
}

void ProfileSession::Delete() {
    DropNotes();
    if (!HasProfile() ||
        context_.person.AskYesNo("Delete Profile " + profile_.Path, Answer::No) != Answer::Yes)
        return;
    const std::string name = profile_.Name;
    profiles_.Delete(profile_);
    DeleteBoxGroups(context_.files, profile_.Path);
    Close();
    RebuildStrip();
    ShowPanels();
    context_.person.SetPanel(Panel::Message, "Deleted Profile: " + name);
    if (profiles_.Entries().empty())
        thumbnails_.DeleteFile();
}

void ProfileSession::SetActive(bool active) {
    if (profile_.IsOpen)
        profile_.Active = active;
}

void ProfileSession::RebuildStrip() {
    records_ = profiles_.Reload();
    thumbnails_.Rebuild(profiles_.Entries(), screen_.strip);
    profile_.CurrentProfile = profiles_.NumberOf(profile_.Path);
    screen_.strip.SelectThumbnail(profile_.CurrentProfile);
}

void ProfileSession::Close() {
    lasting_.clear();
    editor_.Clear();
    screen_.page.Clear();
    profile_ = OpenProfile();
}

// What the panels say of the profile at the desk; nothing of one that cannot be read, or of none.
void ProfileSession::ShowPanels() {
    context_.person.SetPanel(Panel::Message, IsOpen() ? HeadingOf(profile_) : "");
    context_.person.SetPanel(Panel::ElapsedTime, IsOpen() ? "OMRs:" + std::to_string(profile_.Count) : "");
}

void ProfileSession::Note(const std::string& failure) {
    if (!failure.empty())
        notes_.push_back({failure + "."});
}

std::vector<app::Notice> ProfileSession::Notices() const {
    std::vector<app::Notice> notices = lasting_;
    for (const std::vector<app::Notice>& more : {notes_, context_.advise(profile_)})
        notices.insert(notices.end(), more.begin(), more.end());
    return notices;
}

}  // namespace tavrene::profiles
