#pragma once

#include <string>
#include <string_view>

namespace tavrene::app {

/// What a broken sequence is read as (U+FFFD).
inline constexpr char32_t kBrokenCharacter = 0xFFFD;

/// Takes one character off the front of `utf8`, which must not be empty; a broken sequence gives up one byte.
char32_t TakeCharacter(std::string_view& utf8);

/// Appends a character, which must be one of Unicode.
void AppendCharacter(std::string& utf8, char32_t character);

}  // namespace tavrene::app
