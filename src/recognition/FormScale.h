#pragma once

#include <cstdint>

#include "imaging/PageReader.h"
#include "profiles/ProfileRecord.h"

namespace tavrene::recognition {

/// What a profile's coordinates are multiplied with to be pixels of an image of another resolution. Single
/// precision, and so are the products: where they land on a half decides which pixel is read.
struct FormScale {
    float sx = 1.0F;
    float sy = 1.0F;

    // Of an edge of a profile's box, page frame.
    double X(std::int16_t ordinate) const { return static_cast<float>(ordinate) * sx; }
    double Y(std::int16_t ordinate) const { return static_cast<float>(ordinate) * sy; }
};

/// 1 along an axis on which either resolution is unknown.
inline FormScale ScaleBetween(const imaging::Page& page, const profiles::ProfileRecord& profile) {
    const auto ratio = [](std::int16_t image, std::int16_t specimen) {
        return image > 0 && specimen > 0 ? static_cast<float>(image) / static_cast<float>(specimen) : 1.0F;
    };
    return {ratio(page.DPI_X, profile.DPI_X), ratio(page.DPI_Y, profile.DPI_Y)};
}

}  // namespace tavrene::recognition
