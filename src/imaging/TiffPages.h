#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "imaging/Bitmap.h"

namespace tavrene::imaging {

/// One page of a multi-page TIFF with a text of its own, which travels in the file and is shown nowhere.
struct TiffPage {
    Bitmap picture;
    std::string label;  ///< UTF-8, without NUL.
};

/// The pages of a TIFF in order; none when the content is no TIFF or any page of it is damaged.
std::vector<TiffPage> DecodeTiffPages(std::span<const std::byte> content);

/// A TIFF of all pages in order; empty for no pages. Throws std::runtime_error when the library refuses.
app::Bytes EncodeTiffPages(std::span<const TiffPage> pages);

/// The picture in grey, scaled to `width` pixels with its proportions kept, at most `maxHeight` high. Throws
/// std::runtime_error when there is no memory for it.
Bitmap ReducedPicture(const Bitmap& picture, int width, int maxHeight);

/// Stands for a picture that is not there: an empty grey sheet, crossed out.
Bitmap PlaceholderPicture(int width, int height);

}  // namespace tavrene::imaging
