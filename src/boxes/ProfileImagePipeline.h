#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/ActivityLog.h"
#include "app/Clock.h"
#include "app/Files.h"
#include "app/Operator.h"
#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// What box finding needs of the world around it. The references must outlive the run.
struct PipelineContext {
    const app::Files& files;
    app::Operator& person;
    app::ActivityLog& log;
    const app::Clock& clock;
};

/// The boxes of a blank form, from the top of the page down and from left to right, in the grid frame (`T` is
/// the lower row), with the measures of the image that they were found on.
struct FoundBoxes {
    std::vector<BoxRect> Boxes;
    int Width = 0;
    int Height = 0;
    std::int16_t DPI_X = 0;  ///< 0 when the file carries no resolution.
    std::int16_t DPI_Y = 0;
};

/// Finds the check boxes on the image of a blank form in eleven steps, telling of each in the `Message` panel
/// and by the progress bar, and logs their number for the new profile. Without a usable image a message box
/// says why, no step runs and nothing is returned. Throws `app::FileError` when the log cannot be written.
std::optional<FoundBoxes> FindBoxesOnImage(const std::string& imagePath, const std::string& profileName,
                                           const BoxSizes& sizes, const PairReach& reach,
                                           const PipelineContext& context);

/// One of the eleven steps; `Run` works on the analysis in place.
struct PipelineStep {
    const char* Text;
    void (*Run)(BoxAnalysis&);
};

/// The steps before box assembly joins in, in order. The last one, step 11, restores the long lines and is
/// followed by `IdentifyBoxes`.
const std::vector<PipelineStep>& PipelineSteps();

}  // namespace tavrene::boxes
