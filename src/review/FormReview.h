#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "imaging/ScratchImages.h"
#include "profiles/ProfileRecord.h"
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
    OpenForm* Form() { return form_ ? &*form_ : nullptr; }
    const OpenForm* Form() const { return form_ ? &*form_ : nullptr; }

    /// Opens the form of a document of `ProcessOut` (file name) instead of the open one. No form is open
    /// afterwards when its image or profile is gone, the person does not want it so, or something cannot be
    /// read or written: that throws `app::FileError`, `profiles::DocumentError` or
    /// `recognition::ReadingError`.
    void Open(const std::string& document);

    /// Takes the open form from the screen.
    void Close();

    /// Turns the mark of a row (from 1) round. Rows that there are not change nothing.
    void FlipBox(int number);

    /// Reads the open form against the loaded profile of that name; its own or an unknown one changes
    /// nothing. Throws as `Open` does; the form is then as it was before.
    void ReadAgainst(const std::string& profileName);

    /// The next row after `number` whose ink is so near to the threshold that the mark is open to doubt,
    /// round the end of the list; 0 without one.
    int NextDoubtful(int number) const;

  private:
    const profiles::ProfileRecord* FindProfile(const std::string& name) const;
    bool Prepare(OpenForm& form);
    bool SettleDifferences(OpenForm& form);
    void ShowImage(const std::string& image);
    void LoadForProcessing(const std::string& path);
    void LogFailure(const std::string& image, const std::string& failure);
    void SendBack(const OpenForm& form);
    bool ReadAnew(OpenForm& form, const profiles::ProfileRecord& profile);
    void TakeOffScreen();

    ReviewContext context_;
    const app::Settings& settings_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    ReviewList& list_;
    FormScreen screen_;
    imaging::ScratchImages scratch_;
    std::optional<imaging::Page> page_;
    std::optional<OpenForm> form_;
};

}  // namespace tavrene::review
