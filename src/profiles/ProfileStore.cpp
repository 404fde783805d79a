#include "profiles/ProfileStore.h"

#include <optional>
#include <utility>
#include <variant>

#include "boxes/ProfileImagePipeline.h"
#include "profiles/OmrsOfBoxes.h"
#include "profiles/ProfileDocument.h"
#include "profiles/ProfileLoader.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {
namespace {

using app::Answer;
using app::Panel;

constexpr double kFittingWidth = 750;
constexpr double kFittingStep = 0.96;

[[noreturn]] void RefuseToOpen(const std::string& path, const DocumentError& error) {
    throw DocumentError("The profile " + path + " cannot be opened: " + error.what() + ".");
}

pugi::xml_document LoadNamed(const app::Files& files, const std::string& path) {
    try {
        return LoadProfileDocument(files, path);
    } catch (const DocumentError& error) {
        RefuseToOpen(path, error);
    }
}

}  // namespace

ProfileStore::ProfileStore(const StoreContext& context, OpenProfile& profile,
                           std::vector<ProfileRecord>& records, BoxEditor& editor,
                           const ProfileScreen& screen)
    : context_(context),
      profile_(profile),
      records_(records),
      editor_(editor),
      screen_(screen),
      scratch_(context.files, context.folders.Temp),
      thumbnails_(context.files, context.log, context.person, context.folders.Profiles) {}

bool ProfileStore::MayLeave() {
    if (!profile_.ProfileChanged)
        return true;
    switch (context_.person.AskYesNoCancel("Save changes to Profile <" + profile_.Path + ">?")) {
        case Answer::Yes:
            return Save();
        case Answer::No:
            editor_.ClearChanged();
            return true;
        default:
            return false;
    }
}

bool ProfileStore::Create(const std::string& path, const std::string& imagePath, const boxes::BoxSizes& sizes,
                          const boxes::PairReach& reach) {
    const std::string name = app::BaseName(path);
    if (imaging::SpecimenFormat(imagePath) == imaging::ImageFormat::Tiff &&
        context_.files.FileExists(imagePath))
        Note(scratch_.WriteOriginal(context_.files.Read(imagePath)));
    const std::optional<boxes::FoundBoxes> found = boxes::FindBoxesOnImage(
        imagePath, name, sizes, reach, {context_.files, context_.person, context_.log, context_.clock});
    if (!found)
        return false;
    const std::vector<OmrBox> omrs = OmrsOfBoxes(found->Boxes, found->Height);
    pugi::xml_document document =
        CreateProfileDocument({name, imagePath, found->DPI_X, found->DPI_Y, true},
                              ComposeOmrs(omrs, static_cast<std::int16_t>(omrs.size())));
    SaveProfileDocument(context_.files, path, document);
    context_.log.LogProfileEvent("Created Profile: " + name);
    OpenCreated(path, std::move(document));
    RebuildThumbnails();
    if (profile_.CurrentProfile == 0)
        notes_.emplace_back("The new profile lies outside the Profiles folder, so no run will use it.");
    return true;
}

void ProfileStore::OpenCreated(const std::string& path, pugi::xml_document document) {
    const ProfileContent content = ReadProfileContent(document);
    Close();
    profile_.Path = path;
    profile_.Name = app::BaseName(path);
    profile_.Image = content.Image;
    profile_.DPI_X = content.DPI_X;
    profile_.DPI_Y = content.DPI_Y;
    profile_.Active = content.Active;
    profile_.Document = std::move(document);
    profile_.Fingerprint = context_.files.Fingerprint(path);
    ShowSpecimen(content.Image, Specimen::OfNewProfile);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
}

void ProfileStore::Load(const std::string& path) {
    const int number = NumberOf(path);
    Close();
    profile_.Path = path;
    profile_.Name = app::BaseName(path);
    profile_.CurrentProfile = number;
    profile_.Fingerprint = context_.files.Fingerprint(path);
    profile_.Document = LoadNamed(context_.files, path);
    context_.log.LogProfileEvent("Loaded Profile: " + profile_.Name);
    profile_.Image = profile_.Document.first_child().attribute("Image").value();
    context_.person.SetPanel(Panel::Message, HeadingOf(profile_));
    ProfileContent content;
    try {
        content = ReadProfileContent(profile_.Document);
    } catch (const DocumentError& error) {
        ShowSpecimen(profile_.Image, Specimen::OfStoredProfile);
        RefuseToOpen(path, error);
    }
    profile_.DPI_X = content.DPI_X;
    profile_.DPI_Y = content.DPI_Y;
    profile_.Active = content.Active;
    context_.person.SetPanel(Panel::ElapsedTime, "OMRs:" + std::to_string(content.Count));
    ShowSpecimen(profile_.Image, Specimen::OfStoredProfile);
    profile_.IsOpen = true;
    editor_.BuildBoxList(content);
    FitView();
}

void ProfileStore::ShowSpecimen(const std::string& image, Specimen specimen) {
    const auto read = imaging::ReadSpecimen(context_.files, image);
    const imaging::Page* const page = std::get_if<imaging::Page>(&read);
    screen_.page.SetZoom(100);
    if (page != nullptr) {
        KeepSize(page->bitmap);
        WriteDisplayCopy(image, *page, specimen);
        screen_.page.ShowPicture(page->bitmap);
    } else if (std::get<imaging::PageError>(read) == imaging::PageError::TooManyColors) {
        KeepSize(imaging::DecodeImage(context_.files.Read(image), imaging::SpecimenFormat(image),
                                      imaging::Decode::HeaderOnly));
        screen_.page.ShowFile(image);
    } else {
        screen_.page.Clear();
        notes_.push_back(
            "The specimen image " + image +
            (context_.files.FileExists(image) ? " cannot be read as an image." : " is not there any more."));
    }
}

void ProfileStore::KeepSize(const imaging::Bitmap& picture) {
    profile_.ImageWidth = picture.Width();
    profile_.ImageHeight = picture.Height();
}

// Of a TIFF only a new profile's has one, and that only when it had to be inverted.
void ProfileStore::WriteDisplayCopy(const std::string& image, const imaging::Page& page, Specimen specimen) {
    const bool isTiff = imaging::SpecimenFormat(image) == imaging::ImageFormat::Tiff;
    const bool isTurned = specimen == Specimen::OfNewProfile && page.inverted;
    if (!isTiff || isTurned)
        Note(scratch_.WriteConverted(page));
}

void ProfileStore::Note(const std::string& failure) {
    if (!failure.empty())
        notes_.push_back(failure + ".");
}

// The zoom is kept here: a view may have a smallest zoom, at which a very wide image would never fit.
void ProfileStore::FitView() {
    for (double zoom = 100; profile_.ImageWidth * zoom / 100 > kFittingWidth;) {
        zoom *= kFittingStep;
        screen_.page.SetZoom(zoom);
    }
}

bool ProfileStore::Save() {
    if (!profile_.IsOpen)
        return false;
    const std::string onDisk = context_.files.Fingerprint(profile_.Path);
    if (!onDisk.empty() && onDisk != profile_.Fingerprint &&
        context_.person.AskYesNo("The file " + profile_.Path +
                                 " was changed by somebody else after it was opened here. Save over it?") !=
            Answer::Yes)
        return false;
    WriteDocument();
    if (onDisk.empty())
        notes_.push_back("The file " + profile_.Path + " had been deleted and was written anew.");
    context_.log.LogProfileEvent("Saved Profile: " + profile_.Name);
    editor_.ClearChanged();
    RebuildThumbnails();
    return true;
}

void ProfileStore::WriteDocument() {
    pugi::xml_document document;
    document.reset(profile_.Document);
    try {
        UpdateProfileDocument(document, profile_.Active, ComposeOmrs(profile_.BoxList, profile_.Count));
    } catch (const DocumentError& error) {
        if (const std::optional<int> bad = FindUnwritableName(profile_.BoxList))
            editor_.Select(*bad);
        throw DocumentError("The profile " + profile_.Path + " is not saved: " + error.what() + ".");
    }
    SaveProfileDocument(context_.files, profile_.Path, document);
    profile_.Document = std::move(document);
    profile_.Fingerprint = context_.files.Fingerprint(profile_.Path);
}

bool ProfileStore::Delete() {
    if (profile_.Path.empty() || context_.person.AskYesNo("Delete Profile " + profile_.Path) != Answer::Yes)
        return false;
    if (context_.files.FileExists(profile_.Path))
        context_.files.Delete(profile_.Path);
    context_.log.LogProfileEvent("Deleted Profile: " + profile_.Name);
    Close();
    RebuildThumbnails();
    if (strip_.empty())
        thumbnails_.DeleteFile();
    return true;
}

void ProfileStore::RebuildThumbnails() {
    records_ = LoadActiveProfiles(context_.files, context_.log, context_.person, context_.folders.Profiles);
    strip_ = ListEntries();
    thumbnails_.Rebuild(strip_, screen_.strip);
    profile_.CurrentProfile = NumberOf(profile_.Path);
    screen_.strip.SelectThumbnail(profile_.CurrentProfile);
}

// Every profile file has a place in the strip, also one that recognition leaves out. Records come in the
// order of the listing; why a folder cannot be listed, their loader has logged.
std::vector<StripEntry> ProfileStore::ListEntries() const {
    std::vector<StripEntry> entries;
    if (!context_.files.FolderExists(context_.folders.Profiles))
        return entries;
    auto record = records_.begin();
    for (std::string& fileName : context_.files.List(context_.folders.Profiles, "*.Tvp")) {
        const bool isReadable = record != records_.end() && record->FileName == fileName;
        entries.push_back({std::move(fileName), isReadable, isReadable ? record->Image : std::string()});
        if (isReadable)
            ++record;
    }
    return entries;
}

bool ProfileStore::ThumbnailSelected(int k) {
    if (PathOf(k).empty())
        return false;
    const std::string path = PathOf(k);
    if (!MayLeave()) {
        screen_.strip.SelectThumbnail(profile_.CurrentProfile);
        return false;
    }
    if (!context_.files.FileExists(path)) {
        RebuildThumbnails();
        context_.person.ShowMessage("", "The profile " + path + " is not there any more.");
        return false;
    }
    screen_.strip.SelectThumbnail(NumberOf(path));
    Load(path);
    return true;
}

std::string ProfileStore::ThumbnailHover(int k) const {
    return app::BaseName(PathOf(k));
}

std::string ProfileStore::PathOf(int k) const {
    if (k < 1 || static_cast<std::size_t>(k) > strip_.size())
        return {};
    return context_.folders.Profiles + strip_[static_cast<std::size_t>(k) - 1].FileName;
}

int ProfileStore::NumberOf(const std::string& path) const {
    const std::filesystem::path wanted = app::ToPath(path).lexically_normal();
    for (int k = 1; static_cast<std::size_t>(k) <= strip_.size(); ++k) {
        if (app::ToPath(PathOf(k)).lexically_normal() == wanted)
            return k;
    }
    return 0;
}

void ProfileStore::Close() {
    editor_.Clear();
    screen_.page.Clear();
    profile_ = OpenProfile();
}

std::vector<std::string> ProfileStore::TakeNotes() {
    return std::exchange(notes_, {});
}

}  // namespace tavrene::profiles
