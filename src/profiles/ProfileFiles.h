#pragma once

#include <functional>
#include <pugixml.hpp>
#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "profiles/OpenProfile.h"
#include "profiles/ProfileDocument.h"
#include "profiles/ProfileRecord.h"
#include "profiles/Thumbnails.h"

namespace tavrene::profiles {

/// The profile documents of the `Profiles` folder: makes, loads, saves and deletes them, with one line of the
/// profile log each, and knows their order. What fails throws `app::FileError` or a `DocumentError` that
/// names the file, which is then as it was.
class ProfileFiles {
  public:
    /// `folder` ends in a separator. The references must outlive the object.
    ProfileFiles(app::Files& files, app::ActivityLog& log, app::Operator& person, std::string folder);

    /// Writes a new profile's document and gives it.
    pugi::xml_document Create(const std::string& path, const ProfileHeader& header,
                              std::span<const OmrBox> boxes);

    pugi::xml_document Load(const std::string& path);

    /// Writes the open profile over its document; the profile takes the new one over.
    void Save(OpenProfile& profile);

    /// Writes the path of another specimen image into the profile's document, which else is as it was.
    void ChangeImage(OpenProfile& profile, const std::string& image);

    /// Writes a profile of that path with the same boxes, groups and image, which is not active.
    void Duplicate(const OpenProfile& profile, const std::string& path);

    /// Gives document and groups another path. The specimen image stays where it lies.
    void Rename(const OpenProfile& profile, const std::string& path);

    /// One that has vanished already is deleted, too.
    void Delete(const OpenProfile& profile);

    /// Loads the folder anew, in listing order. Every profile file has a place among the entries, also one
    /// that cannot be read and so has no record.
    std::vector<ProfileRecord> Reload();
    std::span<const StripEntry> Entries() const { return entries_; }

    /// Path of entry `k` (1-based), empty outside the folder's entries; and the other way round, 0 for a path
    /// that is none of theirs.
    std::string PathOf(int k) const;
    int NumberOf(const std::string& path) const;

  private:
    void CopyGroups(const std::string& from, const std::string& to);
    void WithGroups(const std::string& from, const std::string& to, const std::function<void()>& writeTo);
    void Write(OpenProfile& profile, pugi::xml_document document);

    app::Files& files_;
    app::ActivityLog& log_;
    app::Operator& person_;
    std::string folder_;
    std::vector<StripEntry> entries_;
};

/// Throws that the profile of this path cannot be opened, for the reason that `error` gives.
[[noreturn]] void RefuseToOpen(const std::string& path, const std::exception& error);

}  // namespace tavrene::profiles
