#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/FileDialogs.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "app/WorkingFolders.h"
#include "boxes/BoxAnalysis.h"
#include "profiles/BoxEditor.h"
#include "profiles/OpenProfile.h"
#include "profiles/ProfileFiles.h"
#include "profiles/ProfileRecord.h"
#include "profiles/SpecimenPage.h"
#include "profiles/Thumbnails.h"

namespace tavrene::profiles {

inline constexpr const char* kProfileFilter = "Tavrene Profiles (*.Tvp)|*.Tvp";

/// What the session needs of the world; everything must outlive it.
struct ProfileContext {
    app::Files& files;
    app::Operator& person;
    app::FileDialogs& dialogs;
    app::ActivityLog& log;
    const app::Clock& clock;
    const app::WorkingFolders& folders;

    /// What will go wrong in a run with the profile as it stands, in plain sentences.
    std::function<std::vector<app::Notice>(const OpenProfile&)> advise;

    /// What is to be said of boxes that a new profile may lack; without a text for nothing.
    std::function<app::Notice()> offerMore = {};

    /// Whether results in a folder know a profile by its name.
    std::function<bool(const std::string& folder, const std::string& name)> hasResults = {};
};

/// The profile at the desk from its making or opening until it is closed: what the person is asked and told
/// about it, and what strip, page and box list show. What fails throws with a text for the operator; the file
/// and the profile at the desk then are as they were.
class ProfileSession {
  public:
    /// `records` are the loaded profiles that recognition uses; kept in line with the folder.
    ProfileSession(const ProfileContext& context, std::vector<ProfileRecord>& records,
                   const ProfileScreen& screen);

    /// Whether there is a profile at the desk, which may be one that cannot be read, and whether it can be
    /// edited.
    bool HasProfile() const { return !profile_.Path.empty(); }
    bool IsOpen() const { return profile_.IsOpen; }

    const OpenProfile& Profile() const { return profile_; }
    BoxEditor& Editor() { return editor_; }

    /// What else the person should read, about the profile as it stands and the command that was the last.
    std::vector<app::Notice> Notices() const;

    /// What the last command said is over, for another one begins.
    void DropNotes() { notes_.clear(); }

    /// Asks whether unsaved changes are to be saved, and does so. False when the profile is not to be left.
    bool MayLeave();

    /// Asks for a file name and the image of a blank form, finds its boxes and opens the profile that it
    /// makes of them. Nothing changes when the image is of no use; the page is cleared when none is chosen.
    void New(const boxes::BoxSizes& sizes, const boxes::PairReach& reach);

    /// Writes the open profile; a file that somebody else has changed only if the operator wants it. False
    /// when nothing was written. A box name that cannot be written throws, and its row is selected.
    bool Save();

    /// Deletes the profile at the desk, after a question.
    void Delete();

    /// Makes another profile of the saved boxes of this one, under a name that is asked for, and opens it. It
    /// is not active, for both would match the same forms.
    void Duplicate();

    /// Gives the profile another name, which is asked for. Names that are in use are refused.
    void Rename();

    /// The profile's state as the check box has it; reaches the file with the next save.
    void SetActive(bool active);

    /// Loads the profiles of the folder anew and fills the strip.
    void FillStrip() { RebuildStrip(); }

    /// Opens a profile by its path. One that cannot be read throws, but shows its specimen where that is
    /// known, and stands at the desk without being open. One that has vanished is told of.
    void Open(const std::string& path);

    /// The path of thumbnail `k` (1-based), and its tool tip: the name of its profile; both empty outside
    /// the strip.
    std::string PathOf(int k) const { return profiles_.PathOf(k); }
    std::string NameOf(int k) const { return app::BaseName(PathOf(k)); }

    /// Takes the profile off the desk without saving it.
    void Close();

  private:
    bool Create(const std::string& path, const std::string& image, const boxes::BoxSizes& sizes,
                const boxes::PairReach& reach);
    void Load(const std::string& path);
    void Take(const std::string& path, pugi::xml_document document);
    void Describe(const ProfileContent& content);
    void ShowSpecimen(bool isNewProfile);
    void TakeShown(const SpecimenShown& shown);
    void DropLasting(const std::string& topic);
    bool Write();
    void SaveGroups();
    bool MayOverwrite(const std::string& onDisk);
    void RebuildStrip();
    void Locate();
    std::optional<std::string> AskNewName(const std::string& title, const std::string& proposed);
    bool MayLoseName();
    void OpenUnderName(const std::string& path);
    void TellIfOutside();
    void ShowPanels();
    void Note(const std::string& failure);

    ProfileContext context_;
    ProfileScreen screen_;
    std::vector<ProfileRecord>& records_;
    OpenProfile profile_;
    BoxEditor editor_;
    ProfileFiles profiles_;
    SpecimenPage specimen_;
    Thumbnails thumbnails_;
    std::vector<app::Notice> lasting_;  ///< About the profile, for as long as it is at the desk.
    std::vector<app::Notice> notes_;    ///< About the last command and a save before it.
};

}  // namespace tavrene::profiles
