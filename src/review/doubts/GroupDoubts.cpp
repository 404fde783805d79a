#include "review/doubts/GroupDoubts.h"

#include <algorithm>
#include <cstddef>

namespace tavrene::review {
namespace {

using profiles::Takes;

// The boxes of a group that the page tells of.
std::vector<std::size_t> BoxesOf(const profiles::BoxGroup& group, std::span<const BoxEvidence> boxes,
                                 std::span<const std::string> names) {
    std::vector<std::size_t> found;
    for (std::size_t k = 0; k < boxes.size(); ++k)
        if (boxes[k].fill && std::ranges::find(group.Boxes, names[k]) != group.Boxes.end())
            found.push_back(k);
    return found;
}

void Doubt(BoxDoubts& doubts, std::size_t box, DoubtReason reason) {
    if (!doubts[box])
        doubts[box] = reason;
}

}  // namespace

void AddGroupDoubts(BoxDoubts& doubts, std::span<const BoxEvidence> boxes, std::span<const std::string> names,
                    std::span<const profiles::BoxGroup> groups) {
    for (const profiles::BoxGroup& group : groups) {
        if (group.Marks == Takes::AnyNumber)
            continue;
        const std::vector<std::size_t> asked = BoxesOf(group, boxes, names);
        const auto isChecked = [&](std::size_t box) { return boxes[box].isChecked; };
        const auto marks = std::ranges::count_if(asked, isChecked);
        if (marks == 0 && !asked.empty())
            Doubt(doubts,
                  *std::ranges::max_element(asked, {}, [&](std::size_t box) { return *boxes[box].fill; }),
                  DoubtReason::NoneOfGroup);
        for (const std::size_t box : asked)
            if (marks > 1 && group.Marks == Takes::One && isChecked(box))
                Doubt(doubts, box, DoubtReason::ManyOfGroup);
    }
}

}  // namespace tavrene::review
