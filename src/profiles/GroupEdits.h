#pragma once

#include <span>
#include <string>
#include <vector>

#include "profiles/BoxGroups.h"
#include "profiles/BoxHistory.h"

namespace tavrene::profiles {

/// The groups after boxes were changed: one that was renamed at its place keeps its group, one whose name is
/// gone leaves it, and a group without boxes goes.
std::vector<BoxGroup> GroupsAfter(std::vector<BoxGroup> groups, const std::vector<BoxChange>& changes,
                                  const std::vector<OmrBox>& boxes);

/// With these boxes in one group, and in no other.
std::vector<BoxGroup> WithGroup(std::vector<BoxGroup> groups, const BoxGroup& group);

/// Without any group of these boxes.
std::vector<BoxGroup> WithoutBoxes(std::vector<BoxGroup> groups, std::span<const std::string> names);

/// The boxes of each row as a group of its own: those of one block that stand beside each other. It has the
/// words that their names begin with together, or else the name of its first box.
std::vector<BoxGroup> GroupsByRow(const std::vector<OmrBox>& boxes, std::span<const int> numbers);

/// The words that all names begin with together; the first name where there are none.
std::string NameForGroup(std::span<const std::string> names);

}  // namespace tavrene::profiles
