#pragma once

#include <span>
#include <string>

#include "imaging/Bitmap.h"
#include "imaging/PageScreen.h"
#include "profiles/BoxRows.h"

namespace tavrene::profiles {

struct StripThumbnail {
    const imaging::Bitmap* picture;  ///< 8 bits of grey; valid during the call only.
    std::string caption;
};

/// The thumbnail strip (`ImgThumbnail1`). Nothing done here is reported by an event.
class ThumbnailStrip {
  public:
    virtual ~ThumbnailStrip() = default;
    virtual void ShowThumbnails(std::span<const StripThumbnail> thumbnails) = 0;

    /// Marks thumbnail `k` (1-based) as the only selected one; 0 marks none.
    virtual void SelectThumbnail(int k) = 0;
};

/// The parts of the window that show the open profile. They must outlive who holds this.
struct ProfileScreen {
    imaging::PageScreen& page;
    BoxRows& rows;
    ThumbnailStrip& strip;
};

}  // namespace tavrene::profiles
