#pragma once

#include <span>
#include <string>

#include "app/Files.h"
#include "imaging/PageReader.h"

namespace tavrene::imaging {

/// What came of writing a scratch image: the path to show, or why there is none.
struct ScratchCopy {
    std::string path;     ///< UTF-8; empty when the copy could not be written.
    std::string failure;  ///< A plain sentence for the log; empty when it was written.
};

/// The two scratch images of the `Temp` folder, which belong to the current image: "temp2.tif" is the page
/// that is shown, "temp.tif" a picture that had to be turned round or converted first. They serve the screen
/// only, so a copy that cannot be written costs no more than itself: nothing here throws.
class ScratchImages {
  public:
    /// `tempFolder` ends in a separator. `files` must outlive the object.
    ScratchImages(app::Files& files, std::string tempFolder);

    /// The page with its ink dark, as temp2.tif; a TIFF that had to be inverted as temp.tif too.
    ScratchCopy WritePage(const Page& page);

    /// The page with its ink dark, as temp.tif alone.
    ScratchCopy WriteConverted(const Page& page);

    /// An image file as it is, as temp2.tif.
    ScratchCopy WriteOriginal(std::span<const std::byte> content);

  private:
    ScratchCopy Write(const char* name, std::span<const std::byte> content);

    app::Files& files_;
    std::string tempFolder_;
};

}  // namespace tavrene::imaging
