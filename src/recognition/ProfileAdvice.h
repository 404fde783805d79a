#pragma once

#include <vector>

#include "app/Operator.h"
#include "profiles/OpenProfile.h"

namespace tavrene::recognition {

/// What will go wrong in a run with the profile as it stands, one sentence or two for each trap, in words
/// that also say what the operator can do about it. Empty when nothing is known to. Each trap is a topic.
std::vector<app::Notice> AdviseOn(const profiles::OpenProfile& profile);

}  // namespace tavrene::recognition
