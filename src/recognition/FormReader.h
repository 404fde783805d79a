#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "app/Settings.h"
#include "imaging/PageReader.h"
#include "imaging/ScratchImages.h"
#include "profiles/ProfileRecord.h"
#include "recognition/MarkReading.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::recognition {

/// What was read of one image. Nothing of it is written or told yet.
struct FormReading {
    std::optional<imaging::PageError> error;  ///< Why there is no page.
    std::optional<imaging::Page> page;        ///< Only where it was asked for.
    int furtherPages = 0;                     ///< How many more the file has.
    imaging::ScratchCopy copy;
    std::string classification;  ///< As what, in the words of the log; empty where it came to nothing.
    int winner = -1;             ///< Index of the profile it was read as.
    std::int16_t Confidence = 0;
    std::vector<MarkReading> marks;
    bool turned = false;  ///< The page lies upside down.
    std::string failure;  ///< Why it could not be read, though there is a page and perhaps a profile.
    std::optional<SecondOpinion> opinion;
    std::string opinionFailure;
    /// Called once image and result lie in `ProcessOut`; empty where nobody wants to know.
    std::function<void()> arrived = {};
};

/// Looks at what was read of an image (file name) as a form of a profile, with its page, before it is
/// written; what it gives is for `FormReading::arrived`. Throws nothing.
using FormLook = std::function<std::function<void()>(const std::string& image, const FormReading& reading,
                                                     const profiles::ProfileRecord& profile)>;

/// Reads forms by the plain reading or by precise alignment. Several threads may read at the same time.
class FormReader {
  public:
    /// `folder`, where the images lie, ends in a separator; `precise` may be null. All must outlive this, and
    /// nobody may change the settings while a form is being read.
    FormReader(const app::Files& files, PreciseReader* precise, const app::Settings& settings,
               const std::string& folder)
        : files_(files), precise_(precise), settings_(settings), folder_(folder) {}

    /// Throws nothing that comes of the image or the profiles. The page is big: it is left out of the reading
    /// unless it is to be shown.
    FormReading Read(const std::string& name, std::span<const profiles::ProfileRecord> profiles,
                     bool withPage) const;

  private:
    void Recognise(const std::string& name, std::span<const profiles::ProfileRecord> profiles,
                   FormReading& reading) const;
    void RecognisePrecisely(std::span<const profiles::ProfileRecord> profiles, FormReading& reading) const;

    const app::Files& files_;
    PreciseReader* precise_;
    const app::Settings& settings_;
    const std::string& folder_;
};

}  // namespace tavrene::recognition
