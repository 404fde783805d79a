#pragma once

#include <QElapsedTimer>
#include <QFileSystemWatcher>
#include <QKeyEvent>
#include <QObject>
#include <QStackedWidget>
#include <QTimer>
#include <functional>

#include "app/SettingsStore.h"
#include "review/ReviewSession.h"
#include "ui/base/InputWatch.h"
#include "ui/commands/AppState.h"
#include "ui/commands/CommandGate.h"
#include "ui/lists/BoxListView.h"
#include "ui/page/ImageView.h"
#include "ui/reviewing/DoubtCommands.h"
#include "ui/reviewing/ReviewMarks.h"
#include "ui/reviewing/ReviewPane.h"

namespace tavrene::ui {

/// What review needs of the world; everything must outlive it.
struct ReviewModeContext {
    app::Files& files;
    app::Operator& person;
    app::ActivityLog& log;
    app::SettingsStore& store;
    commands::CommandGate& gate;
    recognition::PreciseReader& precise;
};

/// The controls that show the form under review.
struct ReviewControls {
    ImageView& view;
    BoxListView& boxes;
    QStackedWidget& side;  ///< Holds `pane` beside what is shown outside review.
    ReviewPane& pane;
};

/// The window's review: owns the session and connects it to the controls.
class ReviewMode final : public QObject {
  public:
    /// `closeProfile` takes the open profile from the desk when review begins.
    ReviewMode(const commands::AppState& state, const ReviewModeContext& context,
               const ReviewControls& controls, std::function<void()> closeProfile);

    /// A step of loading the window, before anything can run.
    void Load() { session_.SettleInterrupted(); }

    /// The prompt before the open form is left; false when the command at hand is to be abandoned.
    bool MayLeave() { return session_.MayLeave(); }

    /// Takes the open form from the screen, as `ReviewSession` does.
    void CloseForm() { session_.CloseForm(); }

    /// A run takes the form from the screen; when it has ended, the list is filled anew.
    void RunBegins() { session_.RunBegins(); }
    void RunEnded();

    /// As `ReviewSession` does.
    recognition::FormLook LookAtRead() { return session_.LookAtRead(); }

    /// Moves all pages that were not read back to `ProcessIn`.
    void SendAllBack() { session_.SendAllBack(); }

    /// Opens the form of an image, in review; false when none of its name is listed. The prompts about what
    /// is open come before.
    bool OpenFormOf(const std::string& image);

    /// The window closes: what was counted is kept for the next start.
    void KeepCounts() { session_.KeepCounts(); }

    const review::ReviewSession& Session() const { return session_; }

    /// Whether the next form opens after a decision.
    bool GoesOn() const { return goesOn_; }

    /// Makes the controls show what can be done now.
    void Update();

  protected:
    /// The keys of the two lists while a form is open.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void ConnectCommands();
    void ConnectNeighbour(commands::Command command, int step);
    void ConnectFormCommands();
    void ConnectDecisions();
    bool IsOpenFormSelected() const;
    void ConnectControls();
    void Toggle();
    void TakeFirstLine();
    void Decide(const std::function<void()>& decide);
    void GoOn();
    void Save();
    bool IsTyping(const QKeyEvent& key);
    bool TakeDigit(const QKeyEvent& key);
    void RectClicked(int group);
    void WatchFolder();
    void CountDoubtsInIdleTime();
    void FollowList();

    const commands::AppState& state_;
    commands::CommandGate& gate_;
    std::function<void()> closeProfile_;
    ReviewControls controls_;
    ReviewMarks marks_;
    review::ReviewSession session_;
    DoubtCommands doubts_;
    QFileSystemWatcher watcher_;
    QTimer folderChanged_;  ///< Waits until a burst of changes is over.
    QTimer idle_;           ///< Counts the doubts of a form while nobody waits.
    QTimer offer_;          ///< The list shows other lines: what can be done is to be shown.
    InputWatch input_;
    bool goesOn_;
    QString typed_;         ///< As much of a name as was typed in the box list without a pause.
    QElapsedTimer since_;   ///< The last letter of it.
    bool hadForm_ = false;  ///< A form was open after the last command.
};

}  // namespace tavrene::ui
