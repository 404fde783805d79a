#include "profiles/BoxHistory.h"

#include <utility>

namespace tavrene::profiles {

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

const BoxEdit* BoxHistory::StepBack() {
    return CanStepBack() ? &edits_[--done_] : nullptr;
}

const BoxEdit* BoxHistory::StepForward() {
    return CanStepForward() ? &edits_[done_++] : nullptr;
}

}  // namespace tavrene::profiles
