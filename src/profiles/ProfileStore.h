#pragma once

#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"
#include "boxes/BoxAnalysis.h"
#include "imaging/PageReader.h"
#include "imaging/ScratchImages.h"
#include "profiles/BoxEditor.h"
#include "profiles/OpenProfile.h"
#include "profiles/ProfileRecord.h"
#include "profiles/Thumbnails.h"

namespace tavrene::profiles {

/// What the store needs of the world; everything must outlive it.
struct StoreContext {
    app::Files& files;
    app::Operator& person;
    app::ActivityLog& log;
    const app::Clock& clock;
    const app::WorkingFolders& folders;
};

/// The profiles of the `Profiles` folder: makes, opens, saves and deletes them, and keeps the loaded records
/// and the thumbnail strip in line with the folder. What fails throws with a text for the operator; the file
/// and the profile at the desk then are as they were.
class ProfileStore {
  public:
    /// `records` are the loaded profiles that recognition uses. All references must outlive the store.
    ProfileStore(const StoreContext& context, OpenProfile& profile, std::vector<ProfileRecord>& records,
                 BoxEditor& editor, const ProfileScreen& screen);

    /// Asks whether unsaved changes are to be saved, and does so. False when the profile is not to be left.
    bool MayLeave();

    /// Finds the boxes on a blank form and opens the profile that it makes of them, replacing the one at the
    /// desk. False after the operator was told that the image is of no use; nothing has changed then.
    bool Create(const std::string& path, const std::string& imagePath, const boxes::BoxSizes& sizes,
                const boxes::PairReach& reach);

    /// Opens a document. One that cannot be read throws, but shows its specimen where that is known, and
    /// stands at the desk without being open.
    void Load(const std::string& path);

    /// Writes the open profile; a file that somebody else has changed only if the operator wants it. False
    /// when nothing was written. A box name that cannot be written throws, and its row is selected.
    bool Save();

    /// Deletes the profile at the desk, after a question. False when nothing was deleted.
    bool Delete();

    /// Reloads the records from the folder and rebuilds the strip from them.
    void RebuildThumbnails();

    /// Opens profile `k` of the strip, after a question where there are unsaved changes. False when the
    /// operator cancels or the file has vanished.
    bool ThumbnailSelected(int k);

    /// The tool tip of thumbnail `k`: the name of its profile; empty outside the strip.
    std::string ThumbnailHover(int k) const;

    /// Takes the profile off the desk without saving it.
    void Close();

    /// What else is to be said about the last create, load, save or delete, in plain words; taken once.
    std::vector<std::string> TakeNotes();

  private:
    std::string PathOf(int k) const;
    int NumberOf(const std::string& path) const;
    std::vector<StripEntry> ListEntries() const;
    void OpenCreated(const std::string& path, pugi::xml_document document);
    enum class Specimen { OfNewProfile, OfStoredProfile };

    void ShowSpecimen(const std::string& image, Specimen specimen);
    void KeepSize(const imaging::Bitmap& picture);

    void WriteDisplayCopy(const std::string& image, const imaging::Page& page, Specimen specimen);
    void Note(const std::string& failure);
    void FitView();
    void WriteDocument();

    StoreContext context_;
    OpenProfile& profile_;
    std::vector<ProfileRecord>& records_;
    BoxEditor& editor_;
    ProfileScreen screen_;
    imaging::ScratchImages scratch_;
    Thumbnails thumbnails_;
    std::vector<StripEntry> strip_;
    std::vector<std::string> notes_;
};

}  // namespace tavrene::profiles
