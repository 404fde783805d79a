#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// What a profile document holds. Boxes are in document order, in the page frame, with `T` and `B` as they
/// stand there.
struct ProfileContent {
    std::string Image;  ///< Path of the specimen image as the operator chose it; empty when missing.
    std::optional<std::int16_t> DPI_X;  ///< None where the document has none.
    std::optional<std::int16_t> DPI_Y;
    bool Active = false;
    std::int16_t Count = 0;  ///< The attribute; it need not agree with the number of boxes.
    std::vector<OmrBox> Boxes;
};

/// The values of a new profile document's root element.
struct ProfileHeader {
    std::string Profile;
    std::string Image;
    std::int16_t DPI_X = 0;
    std::int16_t DPI_Y = 0;
    bool Active = true;
};

/// Loads a profile document. Throws `DocumentError` (see `ReadXml`) or `app::FileError`.
pugi::xml_document LoadProfileDocument(const app::Files& files, const std::string& path);

/// Reads what a loaded document holds. A missing `Name` is empty, a missing `Active` is off, and a resolution
/// may be missing too; anything else that is missing or no number throws `DocumentError`.
ProfileContent ReadProfileContent(const pugi::xml_document& document);

/// The 1-based place of the first checked box whose name cannot be written, because it holds a double quote,
/// `<` or `&`; none when all can.
std::optional<int> FindUnwritableName(std::span<const OmrBox> boxes);

/// The `OMRs` text: one line a box that is checked, with IDs from 1, each line ended by CR LF. Names go in as
/// they are, so one that cannot be written would break the document: throws `DocumentError` naming that box
/// by its place and its name.
std::string ComposeOmrs(std::span<const OmrBox> boxes, std::int16_t count);

/// A new document from header and `OMRs` text. Throws `DocumentError` when the text cannot be parsed.
pugi::xml_document CreateProfileDocument(const ProfileHeader& header, const std::string& omrsText);

/// Sets an attribute of an open document's root element, which keeps its place there.
void SetRootAttribute(pugi::xml_document& document, const char* name, const std::string& value);

/// Puts the flag and a new `OMRs` element, its boxes numbered from 1, into an open document. When the text
/// cannot be parsed this throws `DocumentError` and leaves the document as it was.
void UpdateProfileDocument(pugi::xml_document& document, bool active, const std::string& omrsText);

/// Writes the document raw, on one line, in UTF-8 without a declaration. Throws `app::FileError`.
void SaveProfileDocument(app::Files& files, const std::string& path, const pugi::xml_document& document);

}  // namespace tavrene::profiles
