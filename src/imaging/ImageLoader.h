#pragma once

#include <optional>
#include <string>

#include "app/ActivityLog.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "imaging/PageReader.h"

namespace tavrene::imaging {

/// Loads the images that recognition reads and keeps the current one. The display copies in the `Temp` folder
/// belong to it: "temp2.tif" is the page with its ink dark, "temp.tif" a TIFF that had to be inverted.
class ImageLoader {
  public:
    /// `tempFolder` ends in a separator. The references must outlive the loader.
    ImageLoader(app::Files& files, app::ActivityLog& log, app::Operator& person, std::string tempFolder);

    /// Loads, checks and binarises an image. A file that is no page of two colours is logged and the operator
    /// told; then there is no current page. Throws only when the log cannot be written.
    bool LoadImageForProcessing(const std::string& path);

    /// The same without the display copies: they take as long as the rest.
    bool LoadImage(const std::string& path);

    /// The page of the last load; not to be asked for when that failed.
    bool HasPage() const { return page_.has_value(); }
    const Page& CurrentPage() const { return *page_; }

  private:
    void Refuse(const std::string& imageName, std::string_view reason);
    void WriteDisplayCopies(const std::string& imageName, bool alsoInverted);

    app::Files& files_;
    app::ActivityLog& log_;
    app::Operator& person_;
    std::string tempFolder_;
    std::optional<Page> page_;
};

}  // namespace tavrene::imaging
