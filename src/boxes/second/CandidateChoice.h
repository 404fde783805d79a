#pragma once

#include <vector>

#include "boxes/BoxOutline.h"
#include "boxes/second/FrameSearch.h"
#include "boxes/second/SecondLook.h"

namespace tavrene::boxes {

/// So many of one size are no chance.
inline constexpr int kInNumber = 8;

/// A rectangle that may become a candidate.
struct Proposal {
    RuledBox Ruled;
    Frame Walls;
};

/// The candidates among the proposals; `there` are the boxes of the profile.
std::vector<Candidate> ChooseCandidates(const std::vector<Proposal>& proposals,
                                        const std::vector<BoxRect>& there, const BoxSizes& sizes);

/// Whether the insides of two boxes have pixels in common. Boxes that share a side have not.
bool Overlap(const BoxRect& a, const BoxRect& b);

}  // namespace tavrene::boxes
