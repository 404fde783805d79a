#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "profiles/BoxGroups.h"
#include "profiles/BoxSelection.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// What box `number` was before an edit and is after it. No box stands for one that is not in the list: only
/// the end of the list comes and goes, for a deleted box keeps its place.
struct BoxChange {
    int number = 0;
    std::optional<OmrBox> before;
    std::optional<OmrBox> after;
};

/// The differences between two lists, by ascending numbers.
std::vector<BoxChange> ChangesBetween(const std::vector<OmrBox>& before, const std::vector<OmrBox>& after);

/// One step that is taken back at once.
struct BoxEdit {
    std::vector<BoxChange> changes;
    std::int16_t countBefore = 0;
    std::int16_t countAfter = 0;
    BoxSelection selectedBefore;
    BoxSelection selectedAfter;
    std::optional<std::vector<BoxGroup>> groupsBefore = {};
    std::optional<std::vector<BoxGroup>> groupsAfter = {};
    bool isNudge = false;  ///< A key moves the boxes on for as long as it is held.
};

/// The edits of the open profile, so that they can be taken back and done again one by one.
class BoxHistory {
  public:
    /// Forgets all edits; the state at hand counts as saved.
    void Clear();

    /// Adds an edit that was just made; what had been taken back can no longer be done again.
    void Record(BoxEdit edit);

    /// Makes a nudge part of the edit before it, where that is a nudge of the same boxes; false otherwise.
    bool Continue(const BoxEdit& nudge);

    /// The edit to take back, or to do again; none when there is none. The edit stays valid until the next
    /// `Record` or `Clear`.
    const BoxEdit* StepBack();
    const BoxEdit* StepForward();
    bool CanStepBack() const { return done_ > 0; }
    bool CanStepForward() const { return done_ < edits_.size(); }

    /// The state at hand is what the file holds, or what the person has given up.
    void MarkSaved() { saved_ = done_; }
    bool IsSavedState() const { return saved_ == done_; }

  private:
    std::vector<BoxEdit> edits_;
    std::size_t done_ = 0;
    std::optional<std::size_t> saved_ = 0;
};

}  // namespace tavrene::profiles
