#include <algorithm>

#include "app/Files.h"

namespace tavrene::app {
namespace {

template <typename Change>
std::string Changed(std::string_view text, Change change) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), change);
    return result;
}

}  // namespace

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
    return Changed(text, [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

std::string LowerCase(std::string_view text) {
    return Changed(text, [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

}  // namespace tavrene::app
