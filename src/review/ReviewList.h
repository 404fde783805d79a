#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "app/WorkingFolders.h"
#include "profiles/ProfileRecord.h"
#include "review/DoubtFinder.h"
#include "review/ReviewScreen.h"

namespace tavrene::review {

/// The processed forms that wait in `ProcessOut`, one line a result document, with their counters. Keeps the
/// list on the screen and the `File` panel in step with itself.
class ReviewList {
  public:
    /// Everything must outlive the list.
    ReviewList(const ReviewContext& context, const app::WorkingFolders& folders, DoubtFinder& doubts);

    /// Reads the folder anew, and offers the profiles for choice. Documents that are damaged or whose image
    /// is gone are logged and left out. Throws `app::FileError` when the folder cannot be listed; the list is
    /// empty then.
    void Fill(std::span<const profiles::ProfileRecord> profiles);

    /// Takes over what came, went or was replaced in the folder since it was last looked at; the selection
    /// stays. A folder that cannot be listed changes nothing.
    void Follow();

    const std::vector<ReviewLine>& Lines() const { return lines_; }

    /// The images of the forms in the list.
    std::set<std::string> Images() const;

    /// The line of a document; none when it is not listed.
    std::optional<std::size_t> IndexOf(const std::string& document) const;

    /// A document was saved, with this tick and confidence. One that is not listed changes nothing.
    void Change(const std::string& document, bool reviewed, const std::string& confidence);
    void Remove(const std::string& document);

    /// Counts the doubts of one form of which they are not known. False when there is none left that can be
    /// read.
    bool CountNext();

    /// Keeps what was counted for the next start.
    void KeepCounts() { doubts_.Keep(); }

    /// Whether the doubts of a line's form are not known, but can be.
    bool IsUncounted(const ReviewLine& line) const;

    /// The number of boxes in doubt of the form of a line, which is read when that is not known; 0 of a
    /// reviewed form, and of one that cannot be read.
    int CountOf(std::size_t line);

    /// The number of forms whose doubts are not known, but can be.
    std::size_t Uncounted() const;

    /// The forms of which something is known to be in doubt, with that, in the order of the lines.
    std::vector<std::pair<std::string, FormDoubts>> InDoubt();

    /// What is in doubt of a listed document's form; null while it is not known.
    const FormDoubts* DoubtsOf(const std::string& document) { return doubts_.Known(FormOf(document)); }

    /// A person has saved the form, or has left so much of it in doubt.
    void SetDoubts(const std::string& document, FormDoubts doubts);

    /// A document was saved, and nobody knows what is in doubt of it now.
    void Saved(const std::string& document);

    /// The form of a document that is listed, as it was when it was last looked at.
    FormOnDisk FormOf(const std::string& document) const;

    /// Whether the document is still as it was when it was last looked at.
    bool IsAsItWas(const std::string& document) const;

    /// Throws `app::FileError` when it is not.
    void RequireAsItWas(const std::string& document) const;

    /// Puts "Reviewed: 2 of 5" into the `File` panel.
    void ShowCounts() const;

  private:
    void FollowRules();
    // A document of the folder as it was when it was last read.
    struct Entry {
        std::string document;
        std::string fingerprint;
        std::string image;  // empty where the document is damaged
        std::optional<ReviewLine> line;
    };

    Entry Read(const std::string& document);
    bool IsCurrent(const Entry& entry) const;
    void ShowDifference(const std::vector<ReviewLine>& wanted);
    void RemoveAt(std::size_t index);
    void Count(std::size_t line);
    std::optional<int> KnownDoubts(const Entry& entry);
    void NotePlaces();
    const Entry& EntryOf(const std::string& document) const { return entries_[places_.at(document)]; }
    Entry& EntryOf(const std::string& document) { return entries_[places_.at(document)]; }
    const Entry& TakeOver(std::size_t index);
    FormOnDisk OnDisk(const Entry& entry) const;

    ReviewContext context_;
    const app::WorkingFolders& folders_;
    DoubtFinder& doubts_;
    std::string folder_;                                   ///< Its fingerprint when it was last looked at.
    std::vector<Entry> entries_;                           ///< In the order of the folder.
    std::unordered_map<std::string, std::size_t> places_;  ///< Of the documents among them.
    std::vector<ReviewLine> lines_;
    std::set<std::string> uncountable_;  ///< Documents whose doubts were looked for in vain.
};

}  // namespace tavrene::review
