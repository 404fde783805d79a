#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>

#include "doubts/DoubtPages.h"
#include "review/doubts/Doubts.h"

namespace tavrene::samples {

/// How the doubts about the forms of a class fare.
struct DoubtTally {
    std::size_t Forms = 0;
    std::size_t Boxes = 0;
    std::size_t Misread = 0;
    std::size_t MisreadInDoubt = 0;
    std::size_t InDoubt = 0;
    std::map<review::DoubtReason, std::size_t> Reasons;
};

/// Which pages of a class are read, and how.
struct ScoreWish {
    std::size_t Pages = 20;
    std::uint64_t First = 1;    ///< Seed of the first page,
    std::uint64_t Step = 1;     ///< and what the next one has more.
    bool SecondOpinion = true;  ///< Precise alignment looks, too.
};

/// Reads pages of a class by the plain reading, and doubts. Forms that it does not recognise are left out:
/// nobody is shown their boxes. `tell`, if there is one, hears of every box, one line of fields parted by
/// tabs.
DoubtTally ScoreDoubts(const DoubtClass& kind, const ScoreWish& wish,
                       const std::function<void(const std::string&)>& tell = {});

}  // namespace tavrene::samples
