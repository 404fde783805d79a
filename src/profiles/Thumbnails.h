#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "imaging/TiffPages.h"
#include "profiles/ProfileScreen.h"

namespace tavrene::profiles {

/// One profile as the strip shows it.
struct StripEntry {
    std::string FileName;     ///< As it is spelled on disk.
    bool IsReadable = false;  ///< Its document could be read.
    std::string Image;        ///< Path of its specimen image.
};

/// The pictures of the strip, kept in "Tavrene_Profiles.tif": page k shows the specimen of profile k,
/// reduced. A page is taken over as long as its specimen file stays the same.
class Thumbnails {
  public:
    /// `profilesFolder` ends in a separator. The references must outlive the object.
    Thumbnails(app::Files& files, app::ActivityLog& log, app::Operator& person, std::string profilesFolder);

    /// Brings the file in line with the profiles and shows it in the strip. Where a specimen cannot be shown
    /// a placeholder takes its place, with one line in the profile log. A file that cannot be written is
    /// logged and shown in the `Message` panel. Without profiles the strip is empty and the file stays as it
    /// is.
    void Rebuild(std::span<const StripEntry> profiles, ThumbnailStrip& strip);

    /// Deletes the file, when its last page has gone.
    void DeleteFile();

  private:
    void TakeOverFile();
    std::vector<imaging::TiffPage> PagesOf(std::span<const StripEntry> profiles);
    imaging::TiffPage MakePage(const StripEntry& profile, const std::string& label);
    void WriteFile();

    app::Files& files_;
    app::ActivityLog& log_;
    app::Operator& person_;
    std::string path_;
    std::vector<imaging::TiffPage> pages_;
    bool isFileRead_ = false;
};

}  // namespace tavrene::profiles
