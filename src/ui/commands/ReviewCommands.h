#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "review/Decisions.h"
#include "review/FormReview.h"
#include "review/ReviewList.h"
#include "ui/commands/AppState.h"
#include "ui/commands/SavePrompts.h"

namespace tavrene::commands {

/// The commands of review and the events of its lists. Lines are counted from 0, rows of the box list from 1.
class ReviewCommands {
  public:
    /// `closeProfile` takes the open profile from the desk when review begins. Everything must outlive the
    /// object.
    ReviewCommands(const AppState& state, const review::ReviewContext& context,
                   std::function<void()> closeProfile);

    /// Settles a decision that an earlier start of the program did not live to end; a step of loading the
    /// window.
    void Load() { decisions_.SettleInterrupted(); }

    /// Switches between profiling and review, unless a question of `prompts` is answered with Cancel. What is
    /// visible follows `InReview`.
    void Toggle(const SavePrompts& prompts);
    bool InReview() const { return inReview_; }

    /// Whether `Okay`, `AcceptForm`, `RejectForm` and `cboProfiles` have a form to act on.
    bool HasForm() { return form_.Form() != nullptr; }

    /// The line of the open form.
    std::optional<std::size_t> OpenLine();

    /// The prompt before the open form is left; false when the command at hand is to be abandoned.
    bool MayLeave();

    /// Takes the open form from the screen, and leaves no decision half done: a run begins.
    void RunBegins();

    /// Fills the list anew when review goes on: a run has ended.
    void Refill();

    /// Opens the form of a line. Cancel at the prompt keeps the open one, and its line selected.
    void Open(std::size_t line);

    /// Opens the form `step` lines below the open one. While none is open, the next one is the `selected`
    /// one, unless that has just been tried.
    void OpenNeighbour(std::optional<std::size_t> selected, int step);

    /// Turns the mark of a row round and brings its box into view.
    void FlipBox(int row);

    /// The row became the current one.
    void BoxSelected(int row);

    /// Makes the next box whose mark is open to doubt the current one, starting behind `row`. False when
    /// there is none.
    bool NextDoubtful(int row);

    void ChooseProfile(const std::string& name) { form_.ReadAgainst(name); }

    void Okay();
    void Accept();
    void Reject();

  private:
    void Settle();
    void ShowList();
    void LeaveReview();
    void ClearScreen();
    void Decide(review::Decision decision);

    const AppState& state_;
    review::ReviewContext context_;
    std::function<void()> closeProfile_;
    review::ReviewList list_;
    review::FormReview form_;
    review::Decisions decisions_;
    bool inReview_ = false;
    std::optional<std::size_t> tried_;  ///< The line that was opened last, or could not be opened.
};

}  // namespace tavrene::commands
