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

/// The text with every byte that belongs to no character replaced by U+FFFD. Documents written by other
/// programs can hold any bytes, and a spreadsheet refuses a whole file for one of them.
std::string ValidUtf8(std::string_view text);

/// The text of bytes in Windows-1252, as the logs hold it.
std::string FromWindows1252(std::string_view bytes);

}  // namespace tavrene::app
