#pragma once

#include <span>
#include <string>

#include "app/Files.h"
#include "imaging/PageReader.h"

namespace tavrene::imaging {

/// The scratch image of a page, not written yet.
struct ScratchCopy {
    app::Bytes content;      ///< Empty where there is no page.
    bool converted = false;  ///< It is a TIFF that had to be inverted.
    std::string failure;     ///< Why it could not be made.
};

/// Makes the copy of a page.
ScratchCopy CopyOf(const Page& page);

/// The two scratch images of the `Temp` folder, which belong to the current image: "temp2.tif" is the page
/// that is shown, "temp.tif" a picture that had to be turned round or converted first. The program shows its
/// pages from memory, so a copy that cannot be written costs no more than itself: nothing here throws. Each
/// function gives the reason of a failure as a sentence without its full stop; empty when all went well.
class ScratchImages {
  public:
    /// `tempFolder` ends in a separator. `files` must outlive the object.
    ScratchImages(app::Files& files, std::string tempFolder);

    /// The page with its ink dark, as temp2.tif; a TIFF that had to be inverted as temp.tif too.
    std::string WritePage(const Page& page) { return Write(CopyOf(page)); }

    /// The same of a copy that was made before.
    std::string Write(const ScratchCopy& copy);

    /// The page with its ink dark, as temp.tif alone.
    std::string WriteConverted(const Page& page);

    /// An image file as it is, as temp2.tif.
    std::string WriteOriginal(std::span<const std::byte> content);

  private:
    void Write(const char* name, std::span<const std::byte> content);

    app::Files& files_;
    std::string tempFolder_;
};

}  // namespace tavrene::imaging
