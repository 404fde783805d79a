#pragma once

#include "app/WorkingFolders.h"
#include "review/OpenForm.h"
#include "review/ReviewList.h"

namespace tavrene::review {

/// Writes the marks of a form into its document, and tells log, list and panels of it.
class FormSaver {
  public:
    /// Everything must outlive the object.
    FormSaver(const ReviewContext& context, const app::WorkingFolders& folders, ReviewList& list)
        : context_(context), folders_(folders), list_(list) {}

    /// The form has been reviewed. Throws `app::FileError`; all is then as it was before.
    void SaveReviewed(OpenForm& form) { Save(form, true); }

    /// Marks of the form were corrected, but nobody has looked at all of it: it stays as reviewed as it was.
    void SaveCorrected(OpenForm& form) { Save(form, form.Result.IsReviewed()); }

  private:
    void Save(OpenForm& form, bool isReviewed);
    void Write(OpenForm& form, bool isReviewed);
    void TellReviewed(const OpenForm& form);

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    ReviewList& list_;
};

}  // namespace tavrene::review
