#include "profiles/BoxHistory.h"

#include <algorithm>
#include <utility>

namespace tavrene::profiles {

std::vector<BoxChange> ChangesBetween(const std::vector<OmrBox>& before, const std::vector<OmrBox>& after) {
    const auto at = [](const std::vector<OmrBox>& list, std::size_t index) {
        return index < list.size() ? std::optional<OmrBox>(list[index]) : std::nullopt;
    };
    std::vector<BoxChange> changes;
    const std::size_t shared = std::min(before.size(), after.size());
    for (std::size_t index = 0; index < std::max(before.size(), after.size()); ++index)
        if (index >= shared || before[index] != after[index])
            changes.push_back({static_cast<int>(index) + 1, at(before, index), at(after, index)});
    return changes;
}

void BoxHistory::Clear() {
    edits_.clear();
    done_ = 0;
    saved_ = 0;
}

void BoxHistory::Record(BoxEdit edit) {
    if (saved_ && *saved_ > done_)
        saved_.reset();
    edits_.resize(done_);
    edits_.push_back(std::move(edit));
    ++done_;
}

bool BoxHistory::Continue(const BoxEdit& nudge) {
    if (done_ == 0 || CanStepForward() || IsSavedState())
        return false;
    BoxEdit& last = edits_.back();
    // Boxes are nudged together, so both edits change the same ones.
    if (!last.isNudge || last.selectedAfter != nudge.selectedBefore ||
        last.changes.size() != nudge.changes.size())
        return false;
    for (std::size_t index = 0; index < nudge.changes.size(); ++index)
        last.changes[index].after = nudge.changes[index].after;
    return true;
}

const BoxEdit* BoxHistory::StepBack() {
    return CanStepBack() ? &edits_[--done_] : nullptr;
}

const BoxEdit* BoxHistory::StepForward() {
    return CanStepForward() ? &edits_[done_++] : nullptr;
}

}  // namespace tavrene::profiles
