#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// One edit: what box `number` was before and is after it. No box stands for one that is not in the list yet.
/// An edit of number 0 has put several boxes among the others, which gives boxes other numbers; it holds all.
struct BoxEdit {
    int number = 0;
    std::optional<OmrBox> before;
    std::optional<OmrBox> after;
    std::int16_t countBefore = 0;
    std::int16_t countAfter = 0;
    std::vector<OmrBox> listBefore = {};
    std::vector<OmrBox> listAfter = {};
};

/// The edits of the open profile, so that they can be taken back and done again one by one.
class BoxHistory {
  public:
    /// Forgets all edits; the state at hand counts as saved.
    void Clear();

    /// Adds an edit that was just made; what had been taken back can no longer be done again.
    void Record(BoxEdit edit);

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
