#pragma once

#include <span>
#include <string>

#include "profiles/BoxGroups.h"
#include "review/doubts/Doubts.h"

namespace tavrene::review {

/// Adds what the groups of a form's boxes put in doubt; a box keeps the reason that it has. `names` are those
/// of the boxes. Where a group has too many marks, each of them is in doubt; where it has none, the box with
/// most ink.
void AddGroupDoubts(BoxDoubts& doubts, std::span<const BoxEvidence> boxes, std::span<const std::string> names,
                    std::span<const profiles::BoxGroup> groups);

}  // namespace tavrene::review
