#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tavrene::profiles {

/// One check box as documents and the editor have it: image pixels of the specimen, page frame (y down from
/// the top left corner), all four inclusive. `T` is the upper edge and `B` the lower one, `T` < `B`. Columns
/// count from 0, but the ordinate T is scan line T - 1: a row of the grid is image height - T, and the top
/// scan line is row height - 1.
struct OmrBox {
    std::string Name;
    std::int16_t L = 0;
    std::int16_t T = 0;
    std::int16_t R = 0;
    std::int16_t B = 0;
    bool Checked = true;  ///< Kept: a save writes only checked boxes.
    bool operator==(const OmrBox&) const = default;
};

/// One check box as recognition looks for it: its outline, printed on every form of the profile. The frame is
/// that of `OmrBox`, but the edges are told apart whatever order the document has: `lower` >= `upper`.
struct PrintedBox {
    std::string Name;
    std::int16_t L = 0;
    std::int16_t R = 0;
    std::int16_t lower = 0;
    std::int16_t upper = 0;
    std::int16_t expectedOutline =
        0;  ///< Cells of the outline, wrapped at 16 bits; at most 0 is never found.
    bool operator==(const PrintedBox&) const = default;
};

/// `box` with its two vertical values in order.
PrintedBox PrintedBoxOf(const OmrBox& box);

/// The smallest `L` and lower edge and the largest `R` and upper edge of a set of boxes.
struct BoxExtent {
    std::int16_t L = 0;
    std::int16_t R = 0;
    std::int16_t lower = 0;
    std::int16_t upper = 0;
};

/// One profile as recognition holds it.
struct ProfileRecord {
    std::string Name;      ///< The file's base name.
    std::string FileName;  ///< As it is spelled on disk.
    std::string Image;     ///< Path of the specimen image.
    bool Active = false;
    std::int16_t DPI_X = 0;  ///< 0 when the specimen carries no resolution.
    std::int16_t DPI_Y = 0;
    std::vector<PrintedBox> Boxes;
    BoxExtent Extent;
};

}  // namespace tavrene::profiles
