#include "profiles/XmlFile.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <set>
#include <sstream>

#include "app/Numeric.h"
#include "app/Utf8.h"

namespace tavrene::profiles {
namespace {

class AttributeCheck final : public pugi::xml_tree_walker {
  public:
    bool for_each(pugi::xml_node& node) override {
        std::set<std::string_view> names;
        for (const pugi::xml_attribute attribute : node.attributes()) {
            if (!names.insert(attribute.name()).second)
                throw DocumentError(std::string("the attribute ") + attribute.name() +
                                    " stands twice in one element");
        }
        return true;
    }
};

void CheckTopLevel(const pugi::xml_document& document, Declaration declaration) {
    pugi::xml_node node = document.first_child();
    if (declaration == Declaration::Allowed && node.type() == pugi::node_declaration)
        node = node.next_sibling();
    if (!node)
        throw DocumentError("the document is empty");
    if (node.type() != pugi::node_element)
        throw DocumentError("something stands before the root element");
    for (node = node.next_sibling(); node; node = node.next_sibling()) {
        if (node.type() != pugi::node_comment && node.type() != pugi::node_pi)
            throw DocumentError("something stands behind the root element");
    }
}

// As people write numbers: with blanks around them, a plus sign, a fraction.
std::optional<double> ToNumber(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    text.remove_suffix(text.size() - (text.find_last_not_of(kBlanks) + 1));
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = error == std::errc() && end == text.data() + text.size() && std::isfinite(value);
    return isNumber ? std::optional(value) : std::nullopt;
}

}  // namespace

pugi::xml_document ReadXml(const app::Files& files, const std::string& path, Declaration declaration) {
    const app::Bytes content = files.Read(path);
    pugi::xml_document document;
    // As a fragment the library keeps text beside the root element instead of passing over it in silence.
    const pugi::xml_parse_result result =
        document.load_buffer(content.data(), content.size(), pugi::parse_full | pugi::parse_fragment);
    if (content.empty())
        throw DocumentError("the file is empty");
    if (!result)
        throw DocumentError(std::string("it is not XML (") + result.description() + " at byte " +
                            std::to_string(result.offset) + ")");
    CheckTopLevel(document, declaration);
    AttributeCheck check;
    document.traverse(check);
    return document;
}

void WriteXml(app::Files& files, const std::string& path, const pugi::xml_document& document,
              XmlLayout layout, app::Keep keep) {
    std::ostringstream text;
    if (layout == XmlLayout::Raw)
        document.save(text, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    else
        document.save(text);
    files.Write(path, app::AsBytes(text.str()), keep);
}

std::string XmlText(std::string_view utf8) {
    std::string text;
    while (!utf8.empty()) {
        const char32_t character = app::TakeCharacter(utf8);
        const bool isWritable = character >= 0x20
                                    ? character != 0xFFFE && character != 0xFFFF
                                    : character == '\t' || character == '\n' || character == '\r';
        app::AppendCharacter(text, isWritable ? character : app::kBrokenCharacter);
    }
    return text;
}

std::int16_t RequiredNumber(const pugi::xml_node& element, const char* attribute) {
    const pugi::xml_attribute found = element.attribute(attribute);
    const std::string place = std::string("the attribute ") + attribute + " of " + element.name();
    if (!found)
        throw DocumentError(place + " is missing");
    const std::optional<double> value = ToNumber(found.value());
    if (!value || std::nearbyint(*value) != app::RoundToInt16(*value))
        throw DocumentError(place + " is \"" + found.value() + "\", which is no number of 16 bits");
    return app::RoundToInt16(*value);
}

pugi::xml_node RequiredChild(const pugi::xml_node& element, const char* name) {
    const pugi::xml_node child = element.child(name);
    if (!child)
        throw DocumentError(std::string("the element ") + name + " is missing");
    return child;
}

}  // namespace tavrene::profiles
