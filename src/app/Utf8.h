#pragma once

#include <string>
#include <string_view>

namespace tavrene::app {

/// Stands for what is no character: U+FFFD.
constexpr char32_t kBrokenCharacter = 0xFFFD;

/// Takes one character off the front of `rest`, which must not be empty; a broken sequence gives up one byte
/// and is `kBrokenCharacter`.
char32_t TakeCharacter(std::string_view& rest);

/// The text with every byte that belongs to no character replaced by U+FFFD. Documents written by other
/// programs can hold any bytes, and a spreadsheet refuses a whole file for one of them.
std::string ValidUtf8(std::string_view text);

}  // namespace tavrene::app
