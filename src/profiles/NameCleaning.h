#pragma once

#include <string>
#include <string_view>

namespace tavrene::profiles {

/// What a profile document cannot hold in a name.
inline constexpr std::string_view kForbiddenInNames = "\"<&";

/// A name on one line: tabs, line breaks and other control characters become a blank, and nothing at either
/// end.
std::string WithoutControls(std::string_view name);

/// The same without what a document cannot hold.
std::string CleanedName(std::string_view name);

}  // namespace tavrene::profiles
