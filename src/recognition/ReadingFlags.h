#pragma once

#include <string_view>

namespace tavrene::recognition {

/// Under these names the settings keep what the person wants of reading, among what the window remembers.
inline constexpr std::string_view kPreciseAlignment = "PreciseAlignment";
inline constexpr std::string_view kSecondOpinion = "SecondOpinion";
inline constexpr std::string_view kUseAllCores = "UseAllCores";

}  // namespace tavrene::recognition
