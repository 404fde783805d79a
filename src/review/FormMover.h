#pragma once

#include <optional>
#include <string>

#include "app/Files.h"
#include "app/WorkingFolders.h"

namespace tavrene::review {

enum class Decision { Accept, Reject };

/// Image and document of a form on their way out of `ProcessOut`; file names without folder.
struct FormMove {
    Decision decision = Decision::Accept;
    std::string Image;
    std::string Document;
};

/// Moves a form's image and document as one. A hidden note in `ProcessOut` tells what is on its way, so that
/// a move that the program did not live to end is ended by the next start.
class FormMover {
  public:
    /// Both must outlive the mover.
    FormMover(app::Files& files, const app::WorkingFolders& folders);

    /// Moves both files to `ProcessFinal` or `ProcessReject`, or none. Throws `app::FileError` naming the
    /// file: one has vanished, the destination already has one of that name, or a move was refused.
    void Move(const FormMove& move);

    /// Ends what an earlier start left half done, and gives it; nothing when there is none, or when it had
    /// moved nothing yet. Throws `app::FileError` when it cannot be ended.
    std::optional<FormMove> FinishInterrupted();

  private:
    const std::string& Destination(const FormMove& move) const;
    std::string NotePath() const;
    void WriteNote(const FormMove& move);
    std::optional<FormMove> ReadNote() const;
    void CheckFile(const std::string& name, const std::string& destination) const;
    void MoveBoth(const FormMove& move);
    bool Undo(const FormMove& move);
    void DropNote();
    void Bring(const std::string& name, const std::string& destination);
    void TakeBack(const std::string& name, const std::string& destination);

    app::Files& files_;
    const app::WorkingFolders& folders_;
};

}  // namespace tavrene::review
