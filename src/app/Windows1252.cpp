#include <algorithm>
#include <array>
#include <iterator>

#include "app/ActivityLog.h"
#include "app/Utf8.h"

namespace tavrene::app {
namespace {

// The characters of the bytes 0x80 to 0x9F; 0 where the code page has none. All other bytes up to 0xFF are
// the character of their own number.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(character));
    const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), character);
    if (found == kHighControls.end() || character == 0)
        return '?';
    return static_cast<char>(static_cast<unsigned char>(0x80 + std::distance(kHighControls.begin(), found)));
}

}  // namespace

std::string ToWindows1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty())
        bytes += ByteOf(TakeCharacter(utf8));
    return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        const char32_t character =
            number >= 0x80 && number < 0xA0 ? kHighControls.at(number - 0x80U) : number;
        AppendCharacter(text, character == 0 && number != 0 ? kBrokenCharacter : character);
    }
    return text;
}

}  // namespace tavrene::app
