#include "profiles/NameCleaning.h"

#include "app/Utf8.h"

namespace tavrene::profiles {
namespace {

bool IsControl(char32_t c) {
    constexpr char32_t kLineSeparator = 0x2028;
    constexpr char32_t kParagraphSeparator = 0x2029;
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == kLineSeparator || c == kParagraphSeparator;
}

}  // namespace

// A name that was copied from a table ends in a line break, which leaves nothing.
std::string WithoutControls(std::string_view name) {
    std::string cleaned;
    bool isParted = false;
    while (!name.empty()) {
        const std::string_view rest = name;
        if (IsControl(app::TakeCharacter(name))) {
            isParted = !cleaned.empty();
            continue;
        }
        cleaned += isParted ? " " : "";
        cleaned += rest.substr(0, rest.size() - name.size());
        isParted = false;
    }
    return cleaned;
}

std::string CleanedName(std::string_view name) {
    std::string allowed(name);
    std::erase_if(allowed, [](char c) { return kForbiddenInNames.find(c) != std::string_view::npos; });
    return WithoutControls(allowed);
}

}  // namespace tavrene::profiles
