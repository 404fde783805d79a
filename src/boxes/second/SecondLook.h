#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "boxes/BoxAnalysis.h"
#include "boxes/SizeTable.h"

namespace tavrene::boxes {

/// Something on the page that may be a box, in the grid frame.
struct Candidate {
    BoxRect Box;
    int Odds = 0;  ///< 1 to 100: how sure it looks. Only its order means anything.
    bool operator==(const Candidate&) const = default;
};

/// Boxes that are there in number, but larger or smaller than the settings allow.
struct OtherSize {
    int Count = 0;
    BoxSize Size;
    bool IsLarger = false;
};

struct SecondLook {
    /// Most probable first; none overlaps another one or a box that was there already.
    std::vector<Candidate> Candidates;

    /// What the rules kept and neither look takes for a box: print, as a rule.
    std::vector<LeftOutBox> Unlikely;

    std::optional<OtherSize> Other;  ///< Only where the profile has few boxes or none.
    bool WasStopped = false;         ///< The candidates are those found until then.
};

/// Told of the share that is done, 0 to 1; says whether to go on.
using GoOn = std::function<bool(double)>;

/// Looks a second, slower time for boxes on a page. `there` are the boxes that the profile has.
SecondLook LookAgain(const imaging::WorkGrid& page, const std::vector<BoxRect>& there, const BoxSizes& sizes,
                     const GoOn& goOn);

}  // namespace tavrene::boxes
