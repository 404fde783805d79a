#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "profiles/ProfileRecord.h"
#include "review/ClearForms.h"
#include "review/Decisions.h"
#include "review/DoubtSheet.h"
#include "review/FormReview.h"
#include "review/NextInDoubt.h"
#include "review/ReviewList.h"
#include "review/ReviewScreen.h"
#include "review/RunDoubts.h"
#include "review/UnreadPages.h"

namespace tavrene::review {

/// A person's way through the processed forms: the list, the open form, and what is decided about it. Lines
/// of the list are counted from 0, rows of the open form's boxes from 1. Failures throw with a text that
/// names the file; form, list and counters are then as they were.
class ReviewSession {
  public:
    /// Everything must outlive the object. `profiles` are the loaded ones, whatever they are at the time.
    ReviewSession(const ReviewContext& context, const app::Settings& settings,
                  const app::WorkingFolders& folders, const std::vector<profiles::ProfileRecord>& profiles);

    /// As `Decisions::Settle`.
    void SettleInterrupted() { decisions_.Settle(); }

    /// Fills the list on an empty screen; the person enters review.
    void Begin();

    /// Takes form and list from the screen, without saving; the person leaves review.
    void End();
    bool IsOn() const { return stage_ == Stage::On; }

    /// Whether the person is in review or has been there.
    bool WasOn() const { return stage_ != Stage::NotYet; }

    /// Takes the open form from the screen, and leaves no decision half done: a run begins.
    void RunBegins();

    /// Has the doubts of the forms counted that a run reads.
    recognition::FormLook LookAtRead() { return runDoubts_.Look(); }

    /// Fills the list anew when the person is in review: a run has ended.
    void RunEnds();

    /// Takes over what has come and gone in the folder, while the person is in review.
    void FollowFolder();

    /// The images that lie beside the forms unread; kept up to date while the person is in review.
    const std::vector<UnreadPage>& Unread() const { return unread_.Pages(); }

    /// Moves unread images back to `ProcessIn`, those named or all that there are now, also outside review.
    /// Says in the `Message` panel how many stayed, since their name waits there.
    void SendBack(std::span<const std::string> names);
    void SendAllBack();

    /// Whether `Okay`, `AcceptForm`, `RejectForm` and `cboProfiles` have a form to act on.
    bool HasForm() const { return form_.Form() != nullptr; }

    /// The open form, with what the person has changed; null without one.
    const OpenForm* Form() const { return form_.Form(); }

    /// The line of the open form.
    std::optional<std::size_t> OpenLine() const;

    /// The forms of the list, in its order.
    const std::vector<ReviewLine>& Lines() const { return list_.Lines(); }

    /// Keeps what was counted for the next start.
    void KeepCounts() { list_.KeepCounts(); }

    /// Counts the doubts of one form of which they are not known yet; false when there is none left.
    bool CountNextDoubts() { return IsOn() && list_.CountNext(); }

    /// Counts all doubts that are not known yet.
    void CountAllDoubts(const WorkWatch& goesOn);

    /// Boxes in doubt of many forms, to be judged together. While it is worked on no form is to be open.
    DoubtSheet& Sheet() { return sheet_; }

    /// Takes the open form from the screen. Unsaved changes are lost: the prompt comes before.
    void CloseForm() { form_.Close(); }

    /// Opens a document's form at a row (from 1) and shows that box large; at row 0, where opening it asks
    /// nothing, as it is.
    void OpenAt(const std::string& document, int row);

    /// The prompt before the open form is left, which saves it on Yes; false when the command at hand is to
    /// be abandoned. Where the form stays open, its line is selected.
    bool MayLeave();

    /// Opens the form of a line. Unsaved changes of the open one are lost: the prompt comes before.
    void Open(std::size_t line);

    /// The line `step` lines below the `selected` one, without one that of the open form; where there is one.
    /// While the selected one is not open, it is the next one itself, unless that has just been tried.
    std::optional<std::size_t> Neighbour(std::optional<std::size_t> selected, int step) const;

    /// Turns the mark of a row round and brings its box into view.
    void FlipBox(int row);

    /// Turns the mark of the n-th box of the current row's group round, as `RowInGroup` finds it, and makes
    /// it the current one.
    void FlipInGroup(int row, int n);

    /// The row became the current one.
    void BoxSelected(int row);

    /// Makes the next box in doubt behind `row` of the open form the current one and shows it large enough to
    /// judge; behind the last one of the form, the first one of the next form shown that has any and is not
    /// reviewed, which is opened. Forms whose doubts are not known are read on the way. False when there is
    /// none, the person will not wait, or the open form is not left.
    bool NextDoubt(int row, const WorkWatch& goesOn = GoesOnAlways);

    void ReadAgainst(const std::string& profileName) { form_.ReadAgainst(profileName); }

    /// Marks the open form as reviewed and writes its marks; counts it when it was not reviewed before. False
    /// when the person would rather keep what somebody else has written in the meantime.
    bool Save() { return form_.Save(); }

    /// Moves image and document of the open form out of `ProcessOut` and selects the next line.
    void Accept() { Decide(Decision::Accept); }
    void Reject() { Decide(Decision::Reject); }

    /// Selects the form below the one that was decided about or is open, where there is one, and opens it at
    /// its first box in doubt, unless that asks something. False when it shows none.
    bool GoOn();

    /// The first line shown that is not reviewed, or else the first one; none in an empty list.
    std::optional<std::size_t> FirstToDo() const;

    /// The forms of the list as it is shown that nothing is in doubt of, as far as is known.
    ClearForms FindClear() const;

    /// Accepts these forms as one decision; the open form goes from the screen when it is one of them. Gives
    /// a sentence for each that stays though there was time for it.
    std::vector<std::string> AcceptAll(const ClearForms& forms, const WorkWatch& goesOn);

    /// Whether there is a decision to take back: they are kept while the program runs.
    bool HasDecided() const { return decisions_.HasAny(); }

    /// Takes the last decision back: image and document of each of its forms lie in `ProcessOut` again, and a
    /// single form is opened unless that would ask something. Unsaved changes of the open form are lost: the
    /// prompt comes before. Throws `app::FileError` when files have changed since, which gives the decision
    /// about them up, or cannot be moved.
    void UndoDecision(const WorkWatch& goesOn = GoesOnAlways);

  private:
    enum class Stage { NotYet, On, Over };

    void TrySettle();
    void ShowList();
    bool Leave(app::Answer answer);
    void SelectOpenLine();
    void FollowUnread();
    std::string DocumentBeside(std::optional<std::size_t> line, int step) const;
    std::string DocumentNear(std::size_t line) const;
    void SelectDocument(const std::string& document);
    void OpenUnasked(std::size_t line);
    bool ShowDoubt(int row);
    bool MayOpen(std::size_t line) const;
    void Decide(Decision decision);

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    DoubtFinder doubts_;
    RunDoubts runDoubts_;
    ReviewList list_;
    FormReview form_;
    Decisions decisions_;
    DoubtSheet sheet_;
    UnreadPages unread_;
    std::string unreadIn_;  ///< Fingerprint of the folder when the unread images were looked for.
    Stage stage_ = Stage::NotYet;
    std::string below_;  ///< The document below the one that was decided about last.
    std::string tried_;  ///< The document that was opened last, or could not be opened.
};

}  // namespace tavrene::review
