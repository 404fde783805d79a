#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "review/FormMover.h"
#include "review/WorkWatch.h"

namespace tavrene::review {

/// What a person has decided about forms while the program runs: moves their files, tells the log, and takes
/// the last decision back.
class Decisions {
  public:
    /// Everything must outlive the object.
    Decisions(app::Files& files, app::ActivityLog& log, const app::WorkingFolders& folders)
        : files_(files), log_(log), mover_(files, folders) {}

    /// Settles a decision that an earlier start of the program did not live to end: its files are together
    /// again in `ProcessOut`, or it was done and is logged now. Throws `app::FileError` when that has to
    /// wait.
    void Settle();

    /// A decision begins, about as many forms as follow.
    void Begin() { decided_.emplace_back(); }

    /// Moves image and document of a form as part of the decision that was begun last. Throws
    /// `app::FileError`; the form lies where it was then.
    void Move(const FormMove& move);

    /// Whether there is a decision to take back.
    bool HasAny() const;

    struct TakenBack {
        std::vector<std::string> documents;  ///< Those that lie in `ProcessOut` again.
        std::vector<std::string> failures;   ///< A sentence for each that does not.
    };

    /// Takes all forms of the last decision back. Those whose files have changed since are given up; those
    /// that cannot be moved, or that `goesOn` has no time for, can be taken back later. Throws as `Settle`.
    TakenBack TakeBack(const WorkWatch& goesOn);

  private:
    struct Decided {
        FormMove move;
        std::string image, document;  // fingerprints after the move
    };

    Decided Remembered(const FormMove& move) const;
    bool IsAsItWas(const Decided& decided) const;
    void Tell(const FormMove& move);
    void DropEmpty();

    app::Files& files_;
    app::ActivityLog& log_;
    FormMover mover_;
    std::vector<std::vector<Decided>> decided_;
};

}  // namespace tavrene::review
