#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Settings.h"
#include "app/WorkingFolders.h"
#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"
#include "recognition/precise/PreciseReader.h"
#include "review/OpenForm.h"
#include "review/doubts/DoubtCache.h"

namespace tavrene::review {

/// A processed form as the folder has it.
struct FormOnDisk {
    std::string Document;     ///< File name.
    std::string Fingerprint;  ///< Of the document.
    std::string Image;        ///< Path.
    std::string Profile;      ///< Name.
};

/// A form that was read again, and its page.
struct LookedAt {
    OpenForm form;
    imaging::Page page;
};

/// What is in doubt of the forms that wait in `ProcessOut`: as far as it is known already, or found by
/// reading the form again.
class DoubtFinder {
  public:
    /// Everything must outlive the object; `precise` may be null. `profiles` are the loaded ones, whatever
    /// they are at the time.
    DoubtFinder(app::Files& files, const app::Settings& settings, const app::WorkingFolders& folders,
                const std::vector<profiles::ProfileRecord>& profiles, recognition::PreciseReader* precise);

    /// The profiles, their groups or the way of reading may have changed.
    void Begin();

    /// Whether the fill threshold or the way of reading is another one than at the last call.
    bool HaveRulesChanged();

    /// Null while it is not known.
    const FormDoubts* Known(const FormOnDisk& form);

    /// Reads the form, and keeps what is found. Null when it cannot be read, or belongs to no profile.
    const FormDoubts* Find(const FormOnDisk& form);

    /// Keeps what a person has left in doubt of a form.
    void Set(const FormOnDisk& form, FormDoubts doubts);

    /// Reads the form again: its marks, and where its boxes lie on the page, but not what is in doubt.
    /// Nothing when it cannot be read, or belongs to no profile.
    std::optional<LookedAt> LookAt(const FormOnDisk& form);

    /// Writes what was found where the next start finds it.
    void Keep() { cache_.Save(); }

    /// The same for what was set here, beside what others have written meanwhile; nothing is known here then.
    void KeepBesideOthers();

  private:
    std::string StampOf(const FormOnDisk& form);
    std::string WayOfReading() const;
    const std::string& RulesFor(const profiles::ProfileRecord& profile);
    const profiles::ProfileRecord* ProfileOf(const FormOnDisk& form) const;
    using Measuring = void(OpenForm&, const imaging::Page*, std::int16_t, recognition::PreciseReader*);
    std::optional<LookedAt> TryRead(const FormOnDisk& form, Measuring& measure);
    std::optional<LookedAt> Read(const FormOnDisk& form, const profiles::ProfileRecord& profile,
                                 Measuring& measure);

    app::Files& files_;
    const app::Settings& settings_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    recognition::PreciseReader* precise_;
    DoubtCache cache_;
    std::string way_;
    std::map<std::string, std::string> rules_;  ///< By profile: what the doubts of its forms depend on.
};

}  // namespace tavrene::review
