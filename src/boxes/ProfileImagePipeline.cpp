#include "boxes/ProfileImagePipeline.h"

#include <utility>
#include <variant>

#include "app/Numeric.h"
#include "boxes/BoxAssembly.h"
#include "boxes/BoxSort.h"
#include "boxes/LineScan.h"
#include "boxes/SegmentCleanup.h"
#include "imaging/PageReader.h"

namespace tavrene::boxes {
namespace {

constexpr const char* kNotABitmap = "Image not in bitmap format";
constexpr const char* kTooMuchWork =
    "With the box sizes in the settings, this page has too many lines that could be sides of boxes. Please "
    "set "
    "sizes nearer to those of its boxes.";
constexpr const char* kTooManyColors = "Image has more than 2 colors. cannot process.";

using imaging::Page;
using imaging::PageFault;

// The page, or nothing after the operator has been told why there is none.
std::optional<Page> ReadForm(const std::string& imagePath, const PipelineDoors& doors) {
    std::variant<Page, PageFault> read = imaging::ReadSpecimen(doors.files, imagePath);
    if (Page* const page = std::get_if<Page>(&read))
        return std::move(*page);
    const bool hasColors = std::get<PageFault>(read) == PageFault::TooManyColors;
    doors.person.ShowMessage("", hasColors ? kTooManyColors : kNotABitmap);
    return std::nullopt;
}

void ShowMessage(const PipelineDoors& doors, std::string_view text) {
    doors.person.SetPanel(app::Panel::Message, text);
}

// False when the sizes make too much work of the page; the operator has been told then.
bool RunSteps(BoxAnalysis& analysis, const PipelineDoors& doors) {
    const std::vector<PipelineStep>& steps = PipelineSteps();
    doors.person.SetProgressRange(static_cast<int>(steps.size()));
    int number = 0;
    for (const PipelineStep& step : steps) {
        ShowMessage(doors, step.Text);
        doors.person.SetProgress(++number);
        step.Run(analysis);
    }
    ShowMessage(doors, "Identifying OMR boxes...");
    IdentifyBoxes(analysis);
    if (analysis.Work.IsSpent()) {
        doors.person.ShowMessage("", kTooMuchWork);
        return false;
    }
    ShowMessage(doors, std::to_string(analysis.Boxes.size()) + " OMR Boxes identified");
    return true;
}

std::string WholeSeconds(double seconds) {
    return std::to_string(static_cast<long long>(app::RoundHalfToEven(seconds)));
}

}  // namespace

const std::vector<PipelineStep>& PipelineSteps() {
    static const std::vector<PipelineStep> steps = {
        {"Processing step 1 of 11 .", CloseGapsAndMarkRows},
        {"Processing step 2 of 11 ..", MaskLongLines},
        {"Processing step 3 of 11 ...", CloseGapsAndMarkRows},
        {"Processing step 4 of 11 ....", FindLines},
        {"Processing step 5 of 11 .....", FindIntersections},
        {"Processing step 6 of 11 ......", TruncateLineOvershoots},
        {"Processing step 7 of 11 .......", FindIntersections},
        {"Processing step 8 of 11 ........", GroupParallelLines},
        {"Processing step 9 of 11 .........", KeepBestParallel},
        {"Processing step 10 of 11 ..........", FindIntersections},
        {"Processing step 11 of 11 ...........", RestoreLongLines}};
    return steps;
}

std::optional<FoundBoxes> FindBoxesOnImage(const std::string& imagePath, const std::string& profileName,
                                           const BoxSizes& sizes, const PairReach& reach,
                                           const PipelineDoors& doors) {
    const double started = doors.clock.Seconds();
    ShowMessage(doors, "Reading image...");
    std::optional<Page> page = ReadForm(imagePath, doors);
    if (!page)
        return std::nullopt;

    BoxAnalysis analysis(std::move(page->grid), sizes, reach);
    if (!RunSteps(analysis, doors))
        return std::nullopt;
    SortBoxes(analysis.Boxes, analysis.WorkGrid.Width());

    FoundBoxes found{std::move(analysis.Boxes), analysis.WorkGrid.Width(), analysis.WorkGrid.Rows(),
                     page->DPI_X, page->DPI_Y};
    doors.person.SetPanel(app::Panel::ElapsedTime, WholeSeconds(doors.clock.Seconds() - started) + " Sec.");
    doors.log.LogProfileEvent("New Profile: <" + profileName + "> " + std::to_string(found.Boxes.size()) +
                              " OMR Boxes Identified.");
    return found;
}

}  // namespace tavrene::boxes
