#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/Files.h"
#include "imaging/Bitmap.h"
#include "imaging/LibraryHandles.h"
#include "imaging/TiffHeader.h"

namespace tavrene::imaging {

/// The pages of a TIFF, each decoded when it is asked for.
class TiffReader {
  public:
    /// What is no TIFF, or ends within its list of pages, has no pages.
    explicit TiffReader(std::span<const std::byte> content);

    int PageCount() const;

    /// Page `index`, counted from 0; no bitmap when it is damaged or takes more than `MayBeDecoded`
    /// allows.
    Bitmap Page(int index) const;

  private:
    std::vector<TiffHeader> headers_;
    app::Bytes content_;
    MemoryHandle memory_;
    DocumentHandle document_;
};

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

/// Stands for a picture that is not there: an empty grey sheet, crossed out. Without an image library there
/// is none.
Bitmap PlaceholderPicture(int width, int height);

}  // namespace tavrene::imaging
