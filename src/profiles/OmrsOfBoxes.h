#pragma once

#include <span>
#include <vector>

#include "boxes/BoxAnalysis.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// The boxes that box finding identified on an image of `height` pixels as a new profile holds them: turned
/// from the grid frame into the page frame, the upper edge as `T`, named by their numbers.
std::vector<OmrBox> OmrsOfBoxes(std::span<const boxes::BoxRect> found, int height);

/// The boxes of a profile, but for the deleted ones, turned back into the grid frame of an image of that
/// height.
std::vector<boxes::BoxRect> BoxesOfOmrs(std::span<const OmrBox> omrs, int height);

/// The name of a box that nobody named: "Un-named-7".
std::string UnnamedBox(int number);
bool IsUnnamed(const std::string& name);

/// What a list shows of box `number`: its name, or for an empty one that of a box that nobody named.
std::string ShownName(const OmrBox& box, int number);

/// Such a name that no kept box of these has, and counts `number` up behind it: a saved profile is numbered
/// anew, so a box may have the name of another one's number.
std::string FreeName(std::span<const OmrBox> boxes, int& number);

}  // namespace tavrene::profiles
