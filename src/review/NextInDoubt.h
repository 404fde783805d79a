#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "review/ReviewList.h"
#include "review/WorkWatch.h"

namespace tavrene::review {

/// What looking for the next form in doubt has come to.
struct NextInDoubt {
    std::optional<std::size_t> line;
    std::size_t unknown = 0;  ///< Forms that have not been looked at, hidden ones among them.
    int asking = 0;  ///< Forms in doubt that were passed over, since opening them would ask something.
};

/// The next form that is shown, from below `open` round the end of the list, that has a box in doubt and may
/// be opened. Forms whose doubts are not known are read on the way.
NextInDoubt FindNextInDoubt(ReviewList& list, const ReviewLines& shown, std::optional<std::size_t> open,
                            const std::function<bool(std::size_t line)>& mayOpen, const WorkWatch& goesOn);

/// Why there is none.
std::string TextOfNone(const NextInDoubt& found);

}  // namespace tavrene::review
