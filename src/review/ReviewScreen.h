#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "imaging/PageScreen.h"
#include "profiles/BoxRows.h"
#include "recognition/precise/PreciseReader.h"

namespace tavrene::review {

/// One processed form of the review list.
struct ReviewLine {
    std::string Name;      ///< Base name of the document; the line's text.
    std::string Document;  ///< File name of the document as it is spelled on disk.
    bool Reviewed = false;
    std::string Confidence;    ///< As it stands in the document.
    std::string Profile = {};  ///< Its name there.
    /// Boxes in doubt; none while they are not counted, and of a reviewed form: it was looked at.
    std::optional<int> Doubts = std::nullopt;
    bool operator==(const ReviewLine&) const = default;
};

/// The review list (`lvwReview`). Lines are counted from 0 in the order given; the person may have them shown
/// in another one, and some not at all.
class ReviewLines {
  public:
    virtual ~ReviewLines() = default;

    /// Replaces all lines; none is selected.
    virtual void ShowLines(std::span<const ReviewLine> lines) = 0;
    /// Puts a line before the one at `index`; the selection stays where it is, as it does in what follows.
    virtual void InsertLine(std::size_t index, const ReviewLine& line) = 0;
    virtual void ChangeLine(std::size_t index, const ReviewLine& line) = 0;
    virtual void RemoveLine(std::size_t index) = 0;

    /// Makes it the current line and brings it into view; opens nothing.
    virtual void SelectLine(std::size_t index) = 0;

    /// The line shown `step` lines below another (above, if negative); for none the first one shown. Nothing
    /// where there is no such line, or the other is not shown itself.
    virtual std::optional<std::size_t> Beside(std::optional<std::size_t> index, int step) const = 0;
};

/// The choice of the profile to read a form against (`cboProfiles`).
class ProfileChoice {
  public:
    virtual ~ProfileChoice() = default;
    virtual void ShowProfiles(std::span<const std::string> names) = 0;

    /// Shows a profile as the chosen one, which reads nothing, and offers the choice; a name that is none of
    /// the profiles shows none.
    virtual void SetChoice(std::string_view name) = 0;

    /// Shows none and takes the offer away.
    virtual void TakeAway() = 0;
};

/// What the side of the window shows of review.
struct ReviewSide {
    ReviewLines& lines;
    ProfileChoice& choice;
};

/// What review needs of the world; everything must outlive it.
struct ReviewContext {
    app::Files& files;
    app::ActivityLog& log;
    app::Operator& person;
    imaging::PageScreen& page;
    profiles::BoxRows& rows;
    ReviewSide side;
    recognition::PreciseReader* precise = nullptr;  ///< Without one there is the plain reading alone.
};

}  // namespace tavrene::review
