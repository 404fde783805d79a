#pragma once

#include <optional>
#include <string>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::review {

enum class Decision { Accept, Reject };

/// Image and document of a form on their way out of `ProcessOut`, or back; file names without folder.
struct FormMove {
    Decision decision = Decision::Accept;
    std::string Image;
    std::string Document;
    bool isBack = false;  ///< The decision is taken back: from its folder to `ProcessOut`.
};

/// Moves a form's image and document as one. A hidden note in `ProcessOut` tells what is on its way, so that
/// a move that was cut short is known to the next one, and to the next start of the program.
class FormMover {
  public:
    /// Both must outlive the mover.
    FormMover(app::Files& files, const app::WorkingFolders& folders);

    /// Moves both files to `ProcessFinal` or `ProcessReject` or, on the way back, from there, or none; the
    /// note stays. Throws `app::FileError` naming the file: one has vanished, the destination already has one
    /// of that name, or a move was refused.
    void Move(const FormMove& move);

    /// Takes back what the move of the note left half done. Gives the move when it was done: the program may
    /// have ended before it told of it. Throws `app::FileError` when it can be taken back only later.
    std::optional<FormMove> Settle();

    /// The folder of the decision.
    const std::string& FolderOf(Decision decision) const;

    /// Drops the note: all that there is to tell of the move has been told.
    void Forget();

  private:
    enum class Place { Here, There, Copied, Differing, Nowhere };

    const std::string& Source(const FormMove& move) const;
    const std::string& Destination(const FormMove& move) const;
    std::string NotePath() const;
    void WriteNote(const FormMove& move);
    std::optional<FormMove> ReadNote() const;
    void CheckFile(const std::string& name, const FormMove& move) const;
    Place PlaceOf(const std::string& name, const FormMove& move) const;
    bool IsDone(const FormMove& move) const;
    bool TakeBackFromNote(const FormMove& move);
    void TakeBack(const FormMove& move);
    void TakeBackFile(const std::string& name, const FormMove& move);
    bool CanTakeBack(const FormMove& move);

    app::Files& files_;
    const app::WorkingFolders& folders_;
};

}  // namespace tavrene::review
