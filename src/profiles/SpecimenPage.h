#pragma once

#include <string>

#include "app/Files.h"
#include "imaging/PageReader.h"
#include "imaging/PageScreen.h"
#include "imaging/ScratchImages.h"

namespace tavrene::profiles {

/// What is on the page when the specimen image of a profile is shown.
struct SpecimenShown {
    int width = 0;  ///< Pixels of the image; 0 when it cannot be read.
    int height = 0;
    std::string missing;      ///< Why there is nothing to see, in a sentence; empty where there is.
    std::string copyFailure;  ///< Why its copy could not be written, without a full stop.
};

/// Shows specimen images on the page and keeps the copies of them that belong into the `Temp` folder.
class SpecimenPage {
  public:
    /// `tempFolder` ends in a separator. The references must outlive the object.
    SpecimenPage(app::Files& files, imaging::PageScreen& page, std::string tempFolder);

    /// Keeps a copy of a blank form from which a profile is about to be made. Gives why it could not be
    /// written, empty when it was or when none is kept.
    std::string KeepOriginal(const std::string& image);

    /// Shows the image at zoom 100. Of a TIFF a copy is kept only for a new profile, and only when it had to
    /// be inverted.
    SpecimenShown Show(const std::string& image, bool isNewProfile);

    /// The same with an image that has been read.
    SpecimenShown Show(const imaging::Page& page, bool isNewProfile);

    /// Makes the zoom smaller by steps until a page of that width fits.
    void Fit(int width);

  private:
    app::Files& files_;
    imaging::PageScreen& page_;
    imaging::ScratchImages scratch_;
};

}  // namespace tavrene::profiles
