#pragma once

#include <cstdint>
#include <pugixml.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/Files.h"

namespace tavrene::profiles {

/// A document that cannot be read or written as what it should be; `what()` is a plain sentence without the
/// file name.
class DocumentError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// How a document is laid out in its file: profile documents stand on one line without a declaration, result
/// documents in the library's own layout.
enum class XmlLayout { Raw, Indented };

/// Reads a document. Strict where the library is lenient: exactly one root element with nothing but blanks
/// around it (no declaration, comment or text before it, unless a declaration is `allowed`), and no attribute
/// twice on one element. Throws `DocumentError`, or `app::FileError` when the file cannot be read.
enum class Declaration { Refused, Allowed };
pugi::xml_document ReadXml(const app::Files& files, const std::string& path, Declaration declaration);

/// Composes the text in memory and writes it as a whole. Throws `app::FileError`.
void WriteXml(app::Files& files, const std::string& path, const pugi::xml_document& document,
              XmlLayout layout, app::Keep keep = app::Keep::Durably);

/// `utf8` as a document can hold it: control characters that XML has no way to write, and broken sequences,
/// are replaced by U+FFFD.
std::string XmlText(std::string_view utf8);

/// The attribute as a decimal integer of 16 bits; throws `DocumentError` naming the attribute when it is
/// missing, is no integer or does not fit.
std::int16_t RequiredNumber(const pugi::xml_node& element, const char* attribute);

/// The single child element of that name; throws `DocumentError` when there is none.
pugi::xml_node RequiredChild(const pugi::xml_node& element, const char* name);

}  // namespace tavrene::profiles
