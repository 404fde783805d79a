#pragma once

#include "app/WorkingFolders.h"
#include "review/FormMover.h"
#include "review/OpenForm.h"
#include "review/ReviewList.h"
#include "review/ReviewScreen.h"

namespace tavrene::review {

/// Writes what the person decided about a form: saved, accepted, rejected. Failures throw `app::FileError`
/// naming the file; form, list and counters are then as they were.
class Decisions {
  public:
    /// Everything must outlive the object.
    Decisions(const ReviewContext& context, const app::WorkingFolders& folders, ReviewList& list);

    /// Marks the form as reviewed and writes its marks; counts it when it was not reviewed before.
    void Save(OpenForm& form);

    /// Asks whether to save a form with unsaved changes, and saves it on Yes. False on Cancel.
    bool OfferSave(OpenForm& form);

    /// Moves image and document out of `ProcessOut` and takes the line from the list. `leaving` is called
    /// between the moves and the log line, to take the form from the screen.
    template <typename Leaving>
    void Decide(const OpenForm& form, Decision decision, Leaving leaving) {
        const FormMove move = MoveForm(form, decision);
        leaving();
        LogDecision(move);
        list_.ShowCounts();
    }

    /// Settles a decision that was cut short: its files are together again in `ProcessOut`, or it was done
    /// and is logged now. Throws `app::FileError` when that has to wait.
    void SettleInterrupted();

  private:
    FormMove MoveForm(const OpenForm& form, Decision decision);
    void LogDecision(const FormMove& move);

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    ReviewList& list_;
    FormMover mover_;
};

}  // namespace tavrene::review
