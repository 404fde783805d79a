#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "profiles/ProfileRecord.h"
#include "review/FormSaver.h"
#include "review/ReviewList.h"

namespace tavrene::review {

/// A box of a waiting form that a person is to judge by its picture.
struct SheetBox {
    std::string Document;
    int Row = 0;                                       ///< Its place in the document, from 1.
    bool IsChecked = false;                            ///< In the document; or as the person says.
    std::optional<DoubtReason> Reason = std::nullopt;  ///< None for a box that is not in doubt.
    int Ink = 0;                                       ///< Tenths of a percent, of a box in doubt.
    bool operator==(const SheetBox&) const = default;
};

/// Boxes of many forms, judged together and saved form by form: all that are in doubt, or those of one name.
class DoubtSheet {
  public:
    /// Everything must outlive the object.
    DoubtSheet(const ReviewContext& context, const app::WorkingFolders& folders,
               const std::vector<profiles::ProfileRecord>& profiles, ReviewList& list, DoubtFinder& doubts);

    /// The names that boxes of the listed forms have, in the order of their profiles.
    std::vector<std::string> BoxNames() const;

    /// Begins with all boxes in doubt, or with those of a name. Gives what is known of them already, the most
    /// doubtful first.
    std::vector<SheetBox> Begin(const std::string& boxName);

    /// Looks at one more form, and gives its boxes, none perhaps. Nothing when all have been looked at.
    std::optional<std::vector<SheetBox>> LookAtNext();

    /// The forms that have not been looked at yet.
    std::size_t FormsLeft() const { return left_.size(); }

    /// A form again, for pictures of its boxes; nothing when it cannot be read.
    std::optional<LookedAt> PictureOf(const std::string& document);

    struct Outcome {
        int reviewed = 0;                   ///< Forms that were saved as reviewed: no doubt of them is left.
        int corrected = 0;                  ///< Boxes.
        std::vector<std::string> done;      ///< Documents of the forms whose boxes count as judged.
        std::vector<std::string> failures;  ///< A sentence for each of the others.
    };

    /// A person has judged these boxes. Corrections are saved, and a form all of whose doubts have been
    /// judged is saved as reviewed.
    Outcome Confirm(std::span<const SheetBox> judged);

  private:
    std::vector<SheetBox> BoxesOf(const std::string& document);
    std::vector<SheetBox> BoxesOfName(const std::string& document);
    void ConfirmForm(std::span<const SheetBox> judged, Outcome& outcome);
    OpenForm Load(const std::string& document) const;

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    const std::vector<profiles::ProfileRecord>& profiles_;
    ReviewList& list_;
    DoubtFinder& doubts_;
    FormSaver saver_;
    std::string boxName_;           ///< Empty for the boxes in doubt.
    std::deque<std::string> left_;  ///< Documents that have not been looked at.
};

}  // namespace tavrene::review
