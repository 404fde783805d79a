#pragma once

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "app/SettingsStore.h"
#include "profiles/ProfileSession.h"
#include "recognition/precise/PreciseReader.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"
#include "ui/profiling/BoxCommands.h"
#include "ui/profiling/CopyCommands.h"
#include "ui/profiling/GroupCommands.h"
#include "ui/profiling/MoreBoxes.h"
#include "ui/profiling/NameCommands.h"
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
    app::SettingsStore& store;
    recognition::PreciseReader& precise;
};

/// The controls that show the open profile.
struct DeskControls {
    ImageView& view;
    BoxListView& rows;
    ProfilePane& pane;
    CandidatePane& candidates;
};

/// The window's profile desk: owns the session and connects it to the controls.
class ProfileDesk {
  public:
    ProfileDesk(commands::AppState& state, const DeskContext& context, const DeskControls& controls);

    /// Fills strip and profile list; a step of loading the window.
    void Load() { session_.FillStrip(); }

    /// The prompt before the open profile is left; false when the command at hand is to be abandoned.
    bool MayLeave() { return session_.MayLeave(); }

    /// Takes the profile off the desk without saving it.
    void Close();

    /// Takes what may be more boxes off the screen; false when nothing of it was shown.
    bool CloseCandidates() { return more_.Close(); }

    /// Brings what is being typed or dragged to an end, before a command.
    void FinishEdits();

    /// Makes the controls show what can be done now.
    void Update();

    const profiles::ProfileSession& Session() const { return session_; }

    /// Whether a command's toggle button is to look pressed.
    bool Presses(commands::Command command) const;

  private:
    void ConnectCommands();
    void ConnectBoxCommands();
    void ConnectControls();
    void PutBox();
    void Pick(int thumbnail);
    void TestProfile();
    bool CanEdit() const { return session_.IsOpen(); }
    bool HasBox() const { return !session_.Profile().Selected.IsEmpty(); }

    commands::AppState& state_;
    app::Files& files_;
    app::SettingsStore& store_;
    app::Operator& person_;
    recognition::PreciseReader& precise_;
    commands::CommandGate& gate_;
    DeskControls controls_;
    profiles::ProfileSession session_;
    BoxCommands boxes_;
    NameCommands names_;
    CopyCommands copies_;
    GroupCommands groups_;
    MoreBoxes more_;
};

}  // namespace tavrene::ui
