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
    ReviewCommands(const AppState& state, const review::ReviewDoors& doors,
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

    /// Takes the open form from the screen: a run begins.
    void CloseForm() { form_.Close(); }

    /// Fills the list anew when review goes on: a run has ended.
    void Refill();

    /// Opens the form of a line. Cancel at the prompt keeps the open one, and its line selected.
    void Open(std::size_t line);

    /// Opens the form `step` lines below the open one, or below `selected` while none is open.
    void OpenNeighbour(std::optional<std::size_t> selected, int step);

    void FlipBox(int row) { form_.FlipBox(row); }

    /// The row became the current one.
    void BoxSelected(int row);

    /// Makes the next box whose mark is open to doubt the current one, starting behind `row`.
    void NextDoubtful(int row);

    void ChooseProfile(const std::string& name) { form_.ReadAgainst(name); }

    void Okay();
    void Accept();
    void Reject();

  private:
    void ShowList();
    void LeaveReview();
    void ClearScreen();
    void Decide(review::Decision decision);

    const AppState& state_;
    review::ReviewDoors doors_;
    std::function<void()> closeProfile_;
    review::ReviewList list_;
    review::FormReview form_;
    review::Decisions decisions_;
    bool inReview_ = false;
};

}  // namespace tavrene::commands
