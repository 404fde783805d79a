#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/Files.h"

namespace tavrene::app {

/// What the name of a claim begins with whose files could not be given back; nobody works on it.
inline constexpr std::string_view kLeftClaim = "left-";

/// The folder of all claims on the files that wait in `folder`; both end in a separator.
std::string ClaimsIn(const std::string& folder);

/// The names of the claims there on which somebody works or did when it was killed.
std::vector<std::string> ClaimFoldersIn(const std::string& claims);

/// How many files lie in claims on those of `folder` (ending in a separator). When nobody who claims works on
/// it, their owners were killed.
std::size_t CountClaimed(const Files& files, const std::string& folder);

}  // namespace tavrene::app
