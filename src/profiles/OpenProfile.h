#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "app/Files.h"
#include "profiles/BoxArrangement.h"
#include "profiles/BoxGroups.h"
#include "profiles/BoxSelection.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::profiles {

/// The profile at the desk. One that cannot be read has its path and its place in the strip, so that it can
/// be deleted, but is not open.
struct OpenProfile {
    std::string Path;         ///< Of the document, as it is spelled on disk; empty without a profile.
    std::string Name;         ///< The file's base name.
    std::string Image;        ///< Path of the specimen image as the document has it.
    std::string Fingerprint;  ///< Of the document when it was last read or written here.
    pugi::xml_document Document;
    std::int16_t DPI_X = 0;  ///< 0 when the specimen carries no resolution.
    std::int16_t DPI_Y = 0;

    /// Box n is element n - 1. A deleted box keeps its place with `Checked` off, so numbers never change
    /// while the profile is open.
    std::vector<OmrBox> BoxList;
    std::int16_t Count =
        0;  ///< Goes with every box added and deleted; it starts from the document's attribute.
    BoxSelection Selected;  ///< Its current box is the one last selected or edited.
    /// Which boxes answer one question together; nothing while their names tell it.
    std::optional<std::vector<BoxGroup>> Groups;
    std::optional<std::vector<BoxGroup>> SavedGroups;  ///< As the file beside the document has them.
    int NextBoxId = 1;                                 ///< The number that the next drawn rectangle carries.

    int CurrentProfile = 0;       ///< 1-based place in the thumbnail strip; 0 for none.
    bool ProfileChanged = false;  ///< There are unsaved changes of boxes.
    bool IsOpen = false;          ///< The editing tools act only while this is set.
    bool Active = false;          ///< As the check box shows it; reaches the file with the next save.

    int ImageWidth = 0;  ///< Pixels of the specimen; 0 when it cannot be read.
    int ImageHeight = 0;
};

/// Where its boxes are to stay.
inline PageExtent ExtentOf(const OpenProfile& profile) {
    return {profile.ImageWidth, profile.ImageHeight};
}

/// Whether box `number` has a place in the list and is not deleted.
inline bool IsKept(const OpenProfile& profile, int number) {
    return number >= 1 && static_cast<std::size_t>(number) <= profile.BoxList.size() &&
           profile.BoxList[static_cast<std::size_t>(number) - 1].Checked;
}

/// How the `Message` panel names the profile that was opened.
inline std::string HeadingOf(const OpenProfile& profile) {
    return "Profile [" + profile.Name + "], Image [" + app::FileName(profile.Image) + "]";
}

}  // namespace tavrene::profiles
