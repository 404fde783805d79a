#pragma once

#include <vector>

#include "app/Operator.h"
#include "profiles/OpenProfile.h"
#include "recognition/ReadingOptions.h"

namespace tavrene::recognition {

/// What will go wrong in a run with the profile as it stands, one sentence or two for each trap, in words
/// that also say what the operator can do about it. Empty when nothing is known to. Each trap is a topic.
/// Traps of the plain reading's alignment are none for precise alignment.
std::vector<app::Notice> AdviseOn(const profiles::OpenProfile& profile, const ReadingOptions& reading = {});

}  // namespace tavrene::recognition
