#include "profiles/ProfileFiles.h"

#include <utility>

#include "app/Reason.h"
#include "profiles/BoxGroups.h"
#include "profiles/ProfileLoader.h"
#include "profiles/XmlFile.h"

namespace tavrene::profiles {

void RefuseToOpen(const std::string& path, const std::exception& error) {
    throw DocumentError("The profile " + path + " cannot be opened: " + error.what() + ".");
}

ProfileFiles::ProfileFiles(app::Files& files, app::ActivityLog& log, app::Operator& person,
                           std::string folder)
    : files_(files), log_(log), person_(person), folder_(std::move(folder)) {}

pugi::xml_document ProfileFiles::Create(const std::string& path, const ProfileHeader& header,
                                        std::span<const OmrBox> boxes) {
    pugi::xml_document document =
        CreateProfileDocument(header, ComposeOmrs(boxes, static_cast<std::int16_t>(boxes.size())));
    SaveProfileDocument(files_, path, document);
    log_.LogProfileEvent("Created Profile: " + header.Profile);
    return document;
}

pugi::xml_document ProfileFiles::Load(const std::string& path) {
    try {
        pugi::xml_document document = LoadProfileDocument(files_, path);
        log_.LogProfileEvent("Loaded Profile: " + app::BaseName(path));
        return document;
    } catch (const DocumentError& error) {
        RefuseToOpen(path, error);
    }
}

void ProfileFiles::Save(OpenProfile& profile) {
    pugi::xml_document document;
    document.reset(profile.Document);
    try {
        UpdateProfileDocument(document, profile.Active, ComposeOmrs(profile.BoxList, profile.Count));
    } catch (const DocumentError& error) {
        throw DocumentError("The profile " + profile.Path + " is not saved: " + error.what() + ".");
    }
    Write(profile, std::move(document));
}

void ProfileFiles::ChangeImage(OpenProfile& profile, const std::string& image) {
    pugi::xml_document document;
    document.reset(profile.Document);
    SetRootAttribute(document, "Image", image);
    Write(profile, std::move(document));
    profile.Image = image;
}

void ProfileFiles::Write(OpenProfile& profile, pugi::xml_document document) {
    SaveProfileDocument(files_, profile.Path, document);
    profile.Document = std::move(document);
    profile.Fingerprint = files_.Fingerprint(profile.Path);
    log_.LogProfileEvent("Saved Profile: " + profile.Name);
}

void ProfileFiles::CopyGroups(const std::string& from, const std::string& to) {
    if (files_.FileExists(BoxGroupsPath(from)))
        files_.Write(BoxGroupsPath(to), files_.Read(BoxGroupsPath(from)));
    else
        DeleteBoxGroups(files_, to);
}

// Groups come before their document, and go after it: a profile never lacks its own. Those of one that did
// not come must not wait for another of that name.
void ProfileFiles::WithGroups(const std::string& from, const std::string& to,
                              const std::function<void()>& writeTo) {
    CopyGroups(from, to);
    try {
        writeTo();
    } catch (const std::exception&) {
        if (!files_.FileExists(to))
            app::FailureOf([&] { DeleteBoxGroups(files_, to); });
        throw;
    }
}

void ProfileFiles::Duplicate(const OpenProfile& profile, const std::string& path) {
    pugi::xml_document document = LoadProfileDocument(files_, profile.Path);
    SetRootAttribute(document, "Profile", app::BaseName(path));
    SetRootAttribute(document, "Active", "0");
    WithGroups(profile.Path, path, [&] { SaveProfileDocument(files_, path, document); });
    log_.LogProfileEvent("Created Profile: " + app::BaseName(path));
}

void ProfileFiles::Rename(const OpenProfile& profile, const std::string& path) {
    WithGroups(profile.Path, path, [&] { files_.Move(profile.Path, path); });
    DeleteBoxGroups(files_, profile.Path);
    log_.LogProfileEvent("Renamed Profile: " + profile.Name + " to " + app::BaseName(path));
}

void ProfileFiles::Delete(const OpenProfile& profile) {
    if (files_.FileExists(profile.Path))
        files_.Delete(profile.Path);
    log_.LogProfileEvent("Deleted Profile: " + profile.Name);
}

// Records come in the order of the listing; why a folder cannot be listed, their loader has logged.
std::vector<ProfileRecord> ProfileFiles::Reload() {
    std::vector<ProfileRecord> records = LoadActiveProfiles(files_, log_, person_, folder_);
    entries_.clear();
    if (!files_.FolderExists(folder_))
        return records;
    auto record = records.begin();
    for (std::string& fileName : files_.List(folder_, "*.Tvp")) {
        const bool isReadable = record != records.end() && record->FileName == fileName;
        entries_.push_back({std::move(fileName), isReadable, isReadable ? record->Image : std::string()});
        if (isReadable)
            ++record;
    }
    return records;
}

std::string ProfileFiles::PathOf(int k) const {
    if (k < 1 || static_cast<std::size_t>(k) > entries_.size())
        return {};
    return folder_ + entries_[static_cast<std::size_t>(k) - 1].FileName;
}

int ProfileFiles::NumberOf(const std::string& path) const {
    const std::filesystem::path wanted = app::ToPath(path).lexically_normal();
    for (int k = 1; static_cast<std::size_t>(k) <= entries_.size(); ++k) {
        if (app::ToPath(PathOf(k)).lexically_normal() == wanted)
            return k;
    }
    return 0;
}

}  // namespace tavrene::profiles
