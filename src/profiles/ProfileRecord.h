#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrene::profiles {

/// One check box of a profile: image pixels of the specimen, page frame (y down from the top left corner).
/// In documents and in the editor `T` < `B`.
struct OmrBox {
    std::string Name;
    std::int16_t L = 0;
    std::int16_t T = 0;
    std::int16_t R = 0;
    std::int16_t B = 0;
    bool Checked = true;  ///< Kept: a save writes only checked boxes.
    std::int16_t ExpectedOutline =
        0;  ///< Cells of the printed outline; only in profiles loaded for recognition.
    bool operator==(const OmrBox&) const = default;
};

/// The smallest `L` and `T` and the largest `R` and `B` of a set of boxes.
struct BoxExtent {
    std::int16_t L = 0;
    std::int16_t T = 0;
    std::int16_t R = 0;
    std::int16_t B = 0;
};

/// One profile as recognition holds it. Here every box has its lower edge first: `T` is the larger of its two
/// vertical values, whatever order the document has.
struct ProfileRecord {
    std::string Name;      ///< The file's base name.
    std::string FileName;  ///< As it is spelled on disk.
    std::string Image;     ///< Path of the specimen image.
    bool Active = false;
    std::int16_t DPI_X = 0;  ///< 0 when the specimen carries no resolution.
    std::int16_t DPI_Y = 0;
    std::vector<OmrBox> Boxes;
    BoxExtent Extent;
};

}  // namespace tavrene::profiles
