#include "app/Utf8.h"

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

// Not one that a shorter sequence holds, half of a pair, one of the two numbers that XML knows no character
// of, or beyond the last one.
bool BelongsTo(std::size_t length, char32_t character) {
    if (length == 3)
        return character >= 0x800 && (character < 0xD800 || character > 0xDFFF) && character < 0xFFFE;
    return length != 4 || (character >= 0x10000 && character <= 0x10FFFF);
}

// 0xFFFD for a sequence that is cut or no character.
char32_t Decoded(std::string_view utf8, std::size_t length) {
    if (length == 0 || length > utf8.size())
        return kBrokenCharacter;
    const auto lead = static_cast<unsigned char>(utf8.front());
    char32_t character = length == 1 ? lead : lead & (0xFFU >> (length + 1));
    for (std::size_t k = 1; k < length; ++k) {
        const auto next = static_cast<unsigned char>(utf8[k]);
        if ((next & 0xC0U) != 0x80U)
            return kBrokenCharacter;
        character = (character << 6U) | (next & 0x3FU);
    }
    return BelongsTo(length, character) ? character : kBrokenCharacter;
}

}  // namespace

char32_t TakeCharacter(std::string_view& utf8) {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(utf8.front()));
    const char32_t character = Decoded(utf8, length);
    const bool isSpelled = length == 3 && utf8.starts_with("\xEF\xBF\xBD");
    utf8.remove_prefix(character == kBrokenCharacter && !isSpelled ? 1 : length);
    return character;
}

void AppendCharacter(std::string& utf8, char32_t character) {
    const auto append = [&utf8](char32_t byte) {
        utf8 += static_cast<char>(static_cast<unsigned char>(byte));
    };
    const auto follow = [&](unsigned shift) { append(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | (character >> 6U));
        follow(0);
    } else if (character < 0x10000) {
        append(0xE0U | (character >> 12U));
        follow(6);
        follow(0);
    } else {
        append(0xF0U | (character >> 18U));
        follow(12);
        follow(6);
        follow(0);
    }
}

std::string ValidUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty())
        AppendCharacter(valid, TakeCharacter(text));
    return valid;
}

}  // namespace tavrene::app
