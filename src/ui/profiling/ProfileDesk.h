#pragma once

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "profiles/ProfileStore.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/commands/ProfileCommands.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"
#include "ui/profiling/ProfilePane.h"

namespace tavrene::ui {

/// What the desk needs of the world; everything must outlive it.
struct DeskContext {
    app::Files& files;
    app::Operator& person;
    app::ActivityLog& log;
    const app::Clock& clock;
    commands::CommandGate& gate;
    app::FileDialogs& dialogs;
};

/// The controls that show the open profile.
struct DeskControls {
    ImageView& view;
    BoxListView& rows;
    ProfilePane& pane;
};

/// The window's profile desk: puts store, editor and commands together and connects them to the controls.
class ProfileDesk {
  public:
    ProfileDesk(commands::AppState& state, const DeskContext& context, const DeskControls& controls);

    /// Fills strip and profile list; a step of loading the window.
    void Load() { commands_.LoadStrip(); }

    /// The prompt before the open profile is left; false when the command at hand is to be abandoned.
    bool MayLeave() { return commands_.MayLeave(); }

    /// Takes the profile off the desk without saving it.
    void Close();

    /// Brings what is being typed or dragged to an end, before a command.
    void FinishEdits();

    /// Makes the controls show what can be done now.
    void Update();

    /// Whether a profile stands at the desk, which may be one that cannot be read, and whether it can be
    /// edited.
    bool HasProfile() const { return commands_.CanDelete(); }
    bool CanEdit() const { return commands_.CanEdit(); }

    /// Whether a command's toggle button is to look pressed.
    bool Presses(commands::Command command) const;

  private:
    void ConnectCommands();
    void ConnectBoxCommands();
    void ConnectControls();
    bool HasBox() const { return profile_.CurrentBox != 0; }

    commands::AppState& state_;
    commands::CommandGate& gate_;
    DeskControls controls_;
    profiles::OpenProfile profile_;
    profiles::ProfileScreen screen_;
    profiles::BoxEditor editor_;
    profiles::ProfileStore store_;
    commands::ProfileCommands commands_;
};

}  // namespace tavrene::ui
