#include "app/Utf8.h"

#include <algorithm>
#include <array>

namespace tavrene::app {
namespace {

std::size_t SequenceLength(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// False for a character written longer than it need be, for halves of surrogate pairs, which are no
// characters by themselves, and for the two numbers that XML knows no character of.
bool IsCharacter(char32_t character, std::size_t length) {
    constexpr std::array<char32_t, 5> kLeast = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return character >= kLeast[length] && character <= 0x10FFFF && !surrogate && character != 0xFFFE &&
           character != 0xFFFF;
}

char32_t Decoded(std::string_view sequence) {
    const auto lead = static_cast<unsigned char>(sequence.front());
    char32_t character = sequence.size() == 1 ? lead : lead & (0xFFU >> (sequence.size() + 1));
    for (const char byte : sequence.substr(1)) {
        const auto next = static_cast<unsigned char>(byte);
        if ((next & 0xC0U) != 0x80U)
            return kBrokenCharacter;
        character = (character << 6U) | (next & 0x3FU);
    }
    return IsCharacter(character, sequence.size()) ? character : kBrokenCharacter;
}

}  // namespace

char32_t TakeCharacter(std::string_view& rest) {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(rest.front()));
    const bool complete = length > 0 && length <= rest.size();
    const char32_t character = complete ? Decoded(rest.substr(0, length)) : kBrokenCharacter;
    // The character U+FFFD itself may stand in a text: its second byte follows its first.
    const bool written = complete && rest.substr(0, length) == "\xEF\xBF\xBD";
    rest.remove_prefix(character != kBrokenCharacter || written ? length : 1);
    return character;
}

std::string ValidUtf8(std::string_view text) {
    if (std::all_of(text.begin(), text.end(),
                    [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }))
        return std::string(text);
    std::string valid;
    while (!text.empty()) {
        const std::string_view before = text;
        if (TakeCharacter(text) == kBrokenCharacter)
            valid += "\xEF\xBF\xBD";
        else
            valid += before.substr(0, before.size() - text.size());
    }
    return valid;
}

}  // namespace tavrene::app
