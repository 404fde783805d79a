#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/WorkingFolders.h"
#include "profiles/ProfileRecord.h"
#include "review/ReviewScreen.h"

namespace tavrene::review {

/// The processed forms that wait in `ProcessOut`, one line a result document, with their counters. Keeps the
/// list on the screen and the `File` panel in step with itself.
class ReviewList {
  public:
    /// Everything must outlive the list.
    ReviewList(const ReviewContext& context, const app::WorkingFolders& folders);

    /// Reads the folder anew, and offers the profiles for choice. Documents that are damaged or whose image
    /// is gone are logged and left out. Throws `app::FileError` when the folder cannot be listed; the list is
    /// empty then.
    void Fill(std::span<const profiles::ProfileRecord> profiles);

    const std::vector<ReviewLine>& Lines() const { return lines_; }

    /// The line of a document; none when it is not listed.
    std::optional<std::size_t> IndexOf(const std::string& document) const;

    /// Sets tick and confidence of a document's line. One that is not listed changes nothing.
    void Change(const std::string& document, bool reviewed, const std::string& confidence);
    void Remove(const std::string& document);

    /// Puts "Reviewed: 2 of 5" into the `File` panel.
    void ShowCounts() const;

  private:
    std::optional<ReviewLine> ReadLine(const std::string& document);
    void ReadLines();

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    std::vector<ReviewLine> lines_;
    int reviewed_ = 0;
    int missing_ = 0;
};

}  // namespace tavrene::review
