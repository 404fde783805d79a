#pragma once

#include <string>

#include "app/FileDialogs.h"
#include "app/Operator.h"
#include "profiles/ProfileStore.h"
#include "ui/commands/AppState.h"

namespace tavrene::commands {

/// What the profile commands act on; everything must outlive them.
struct ProfileContext {
    profiles::ProfileStore& store;
    profiles::OpenProfile& profile;
    app::Operator& person;
    app::FileDialogs& dialogs;
    imaging::PageScreen& page;
};

/// The commands `New`, `Save` and `Delete` and the events of the thumbnail strip. After the texts of a
/// command the `Message` panel says what else there is to know about the profile, what will go wrong in a run
/// with it above all; of one that was opened it stands behind its heading.
class ProfileCommands {
  public:
    ProfileCommands(const AppState& state, const ProfileContext& context)
        : state_(state), context_(context) {}

    void New();
    void Save();
    void Delete();

    /// Fills strip and profile list; the step of loading the window.
    void LoadStrip();
    void ThumbnailSelected(int k);

    /// The prompt before the open profile is left; false when the command at hand is to be abandoned.
    bool MayLeave();

    /// The check box `chkActive` was switched.
    void SetActive(bool active);

    /// Whether `Save`, the editing tools and `chkActive` have something to act on, and whether `Delete` has.
    bool CanEdit() const { return context_.profile.IsOpen; }
    bool CanDelete() const { return !context_.profile.Path.empty(); }

  private:
    void ForgetNotes();
    void TellMore(const std::string& heading = {});

    const AppState& state_;
    ProfileContext context_;
};

}  // namespace tavrene::commands
