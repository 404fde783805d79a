#include "profiles/ProfileSession.h"

#include <optional>
#include <utility>

#include "boxes/ProfileImagePipeline.h"
#include "profiles/OmrsOfBoxes.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

using app::Answer;
using app::Panel;

constexpr const char* kProfileFilter = "Tavrene Profiles (*.Tvp)|*.Tvp";
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
    notes_.clear();
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
    if (!image)
        screen_.page.Clear();
    else if (Create(*path, *image, sizes, reach))
        TellMore();
}

bool ProfileSession::Create(const std::string& path, const std::string& image, const boxes::BoxSizes& sizes,
                            const boxes::PairReach& reach) {
    const std::string name = app::BaseName(path);
    Note(specimen_.KeepOriginal(image));
    const std::optional<boxes::FoundBoxes> found = boxes::FindBoxesOnImage(
        image, name, sizes, reach, {context_.files, context_.person, context_.log, context_.clock});
    if (!found)
        return false;
    Take(path, profiles_.Create(path, {name, image, found->DPI_X, found->DPI_Y, true},
                                OmrsOfBoxes(found->Boxes, found->Height)));
    const ProfileContent content = ReadProfileContent(profile_.Document);
    Describe(content);
    ShowSpecimen(true);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
    RebuildStrip();
    if (profile_.CurrentProfile == 0)
        notes_.emplace_back("The new profile lies outside the Profiles folder, so no run will use it.");
    return true;
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
    TellMore(HeadingOf(profile_) + ".");
}

void ProfileSession::Load(const std::string& path) {
    Take(path, {});
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
    context_.person.SetPanel(Panel::ElapsedTime, "OMRs:" + std::to_string(content.Count));
    ShowSpecimen(false);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
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
    profile_.DPI_X = content.DPI_X;
    profile_.DPI_Y = content.DPI_Y;
    profile_.Active = content.Active;
}

void ProfileSession::ShowSpecimen(bool isNewProfile) {
    const SpecimenShown shown = specimen_.Show(profile_.Image, isNewProfile);
    profile_.ImageWidth = shown.width;
    profile_.ImageHeight = shown.height;
    notes_.insert(notes_.end(), shown.notes.begin(), shown.notes.end());
}

bool ProfileSession::Save() {
    notes_.clear();
    const bool isWritten = Write();
    if (isWritten)
        TellMore();
    return isWritten;
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
    if (onDisk.empty())
        notes_.push_back("The file " + profile_.Path + " had been deleted and was written anew.");
    editor_.ClearChanged();
    RebuildStrip();
    return true;
}

bool ProfileSession::MayOverwrite(const std::string& onDisk) {
    return onDisk.empty() || onDisk == profile_.Fingerprint ||
           context_.person.AskYesNo(
               "The file " + profile_.Path +
                   " was changed by somebody else after it was opened here. Save over it?",
               Answer::No) == Answer::Yes;
}

void ProfileSession::Delete() {
    notes_.clear();
    if (!HasProfile() ||
        context_.person.AskYesNo("Delete Profile " + profile_.Path, Answer::No) != Answer::Yes)
        return;
    profiles_.Delete(profile_);
    Close();
    RebuildStrip();
    if (profiles_.Entries().empty())
        thumbnails_.DeleteFile();
    TellMore();
}

void ProfileSession::SetActive(bool active) {
    if (profile_.IsOpen)
        profile_.Active = active;
}

void ProfileSession::FillStrip() {
    RebuildStrip();
    TellMore();
}

void ProfileSession::RebuildStrip() {
    records_ = profiles_.Reload();
    thumbnails_.Rebuild(profiles_.Entries(), screen_.strip);
    profile_.CurrentProfile = profiles_.NumberOf(profile_.Path);
    screen_.strip.SelectThumbnail(profile_.CurrentProfile);
}

void ProfileSession::Close() {
    editor_.Clear();
    screen_.page.Clear();
    profile_ = OpenProfile();
}

void ProfileSession::Note(const std::string& failure) {
    if (!failure.empty())
        notes_.push_back(failure + ".");
}

void ProfileSession::TellMore(const std::string& heading) {
    std::string text = heading;
    const auto add = [&text](const std::string& sentence) { text += (text.empty() ? "" : " ") + sentence; };
    for (const std::string& note : std::exchange(notes_, {}))
        add(note);
    for (const std::string& advice : context_.advise(profile_))
        add(advice);
    if (text != heading)
        context_.person.SetPanel(Panel::Message, text);
}

}  // namespace tavrene::profiles
