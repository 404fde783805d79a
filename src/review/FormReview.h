#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "imaging/ScratchImages.h"
#include "profiles/ProfileRecord.h"
#include "review/FormSaver.h"
#include "review/FormScreen.h"
#include "review/OpenForm.h"
#include "review/ReviewList.h"
#include "review/ReviewScreen.h"

namespace tavrene::review {

/// Opens a processed form, shows it, corrects its marks and reads it anew. Asks about no unsaved changes;
/// that is done before.
class FormReview {
  public:
    /// Everything must outlive the object. `profiles` are the loaded ones, whatever they are at the time.
    FormReview(const ReviewContext& context, const app::Settings& settings,
               const app::WorkingFolders& folders, const std::vector<profiles::ProfileRecord>& profiles,
               ReviewList& list);

    /// The open form; none between forms.
    const OpenForm* Form() const { return form_ ? &*form_ : nullptr; }

    /// Opens the form of a document of `ProcessOut` (file name) instead of the open one. No form is open
    /// afterwards when its image is gone, the person does not want it so, or something cannot be read or
    /// written: that throws `app::FileError`, `profiles::DocumentError` or
    /// `recognition::ReadingError`.
    void Open(const std::string& document);

    /// Whether `Open` would open it without a question. Throws as `Open` does.
    bool OpensUnasked(const std::string& document) const;

    /// Takes the open form from the screen.
    void Close();

    /// Turns the mark of a row (from 1) round. Rows that there are not change nothing.
    void FlipBox(int number);

    /// Reads the open form against the loaded profile of that name; its own or an unknown one changes
    /// nothing. Throws as `Open` does; the form is then as it was before.
    void ReadAgainst(const std::string& profileName);

    /// Writes the open form's marks as reviewed, and tells of it. False when the person would rather keep
    /// what somebody else has written in the meantime. Throws `app::FileError`; all is then as it was before.
    bool Save();

    /// Puts the document back that reading against another profile has replaced; the form is about to be
    /// left.
    void DropChanges();

    /// The next row after `number` that is in doubt, round the end of the list; 0 without one.
    int NextDoubtful(int number) const;

  private:
    const profiles::ProfileRecord* FindProfile(const std::string& name) const;
    std::vector<profiles::BoxGroup> GroupsOf(const profiles::ProfileRecord& profile) const;
    bool Prepare(OpenForm& form);
    bool KeepWithoutProfile(OpenForm& form);
    bool SettleDifferences(OpenForm& form);
    void ShowImage(const std::string& image);
    std::optional<app::Bytes> DocumentBefore(const OpenForm& form) const;
    bool LoadForProcessing(const OpenForm& form);
    void LogFailure(const std::string& image, const std::string& failure);
    void SendBack(const OpenForm& form);
    bool HasImage(const OpenForm& form);
    bool MayOverwrite(const OpenForm& form);
    std::string PathOf(const OpenForm& form) const { return folders_.ProcessOut + form.Document; }
    void ShowInList(const OpenForm& form);
    bool ReadAnew(OpenForm& form, const profiles::ProfileRecord& profile);
    void TakeOffScreen();

    ReviewContext context_;
    const app::Settings& settings_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    ReviewList& list_;
    FormScreen screen_;
    FormSaver saver_;
    imaging::ScratchImages scratch_;
    std::optional<imaging::Page> page_;
    std::optional<OpenForm> form_;
};

}  // namespace tavrene::review
