#include <clocale>
#include <cwctype>

#include "app/Files.h"
#include "app/Utf8.h"

namespace tavrene::app {
std::span<const std::byte> AsBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

std::filesystem::path ToPath(std::string_view utf8) {
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string FromPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string FileName(std::string_view path) {
    return FromPath(ToPath(path).filename());
}

std::string BaseName(std::string_view path) {
    return FromPath(ToPath(path).stem());
}

std::string Extension(std::string_view path) {
    std::string extension = FromPath(ToPath(path).extension());
    if (!extension.empty())
        extension.erase(0, 1);
    return extension;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return upper;
}

std::string LowerCase(std::string_view text) {
    // The same for every person, wherever the folder is listed.
    static const ::locale_t letters = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    std::string lower;
    while (!text.empty()) {
        const std::string_view rest = text;
        const char32_t character = TakeCharacter(text);
        if (character == kBrokenCharacter || letters == nullptr)
            lower.append(rest, 0, rest.size() - text.size());
        else
            AppendCharacter(lower,
                            static_cast<char32_t>(::towlower_l(static_cast<::wint_t>(character), letters)));
    }
    return lower;
}

std::string ReplaceFirst(std::string text, std::string_view from, std::string_view to) {
    const std::size_t found = text.find(from);
    return found == std::string::npos ? text : text.replace(found, from.size(), to);
}

}  // namespace tavrene::app
