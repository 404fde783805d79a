#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Files.h"
#include "imaging/PageRect.h"
#include "profiles/BoxGroups.h"
#include "profiles/ProfileRecord.h"
#include "recognition/ResultDocument.h"
#include "review/doubts/Doubts.h"

namespace tavrene::review {

/// One box of the open form as the screen shows it.
struct FormBox {
    std::optional<imaging::PageRect> rect;  ///< None where the profile or the image does not tell its place.
    std::optional<double> ink;              ///< Percent, as measured at opening.
    std::optional<bool> read;               ///< The mark that this ink makes.
    std::optional<DoubtReason> doubt;       ///< Why it should be looked at, as far as was known then.
};

/// The form under review.
struct OpenForm {
    std::string Name;      ///< Base name of the document.
    std::string Document;  ///< File name of the document.
    recognition::ResultDocument Result;
    std::string Fingerprint;  ///< Of the document when it was last read or written here.

    /// The document's marks and shifts when it was opened, and the profile that it had then.
    std::vector<recognition::ResultMark> Opened;
    profiles::ProfileRecord OpenedProfile;

    /// The document before it was read against another profile, while that is not saved.
    std::optional<app::Bytes> Before;

    /// The profile now chosen for it, as it was when it was chosen: a reload of the profiles changes nothing.
    profiles::ProfileRecord Profile;
    bool HasProfile = true;                  ///< False for one that is gone: `Profile` has its name alone.
    std::vector<profiles::BoxGroup> Groups;  ///< Of that profile's boxes.
    std::string SavedProfile;                ///< The profile it had when it was opened or last saved.

    /// The current marks and what is shown of them: one each for every box of the document, in its order.
    std::vector<recognition::ResultMark> Marks;
    std::vector<FormBox> Boxes;
    bool IsUpsideDown = false;  ///< The image, as the places of the boxes tell.

    /// Places of the profile's boxes that the document lacks; empty without an image to draw them on.
    std::vector<imaging::PageRect> SkippedRects;
    int Skipped = 0;

    bool Changed = false;  ///< A mark or the profile was altered and is not saved.
};

}  // namespace tavrene::review
