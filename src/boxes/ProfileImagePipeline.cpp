#include "boxes/ProfileImagePipeline.h"

#include <cmath>
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

constexpr const char* kTooMuchWork =
    "With the box sizes in the settings, this page has too many lines that could be sides of boxes. Please "
    "set "
    "sizes nearer to those of its boxes.";
constexpr const char* kTooManyColors = "Image has more than 2 colors. cannot process.";

using imaging::Page;
using imaging::PageError;

// The page, or nothing after the operator has been told why there is none.
std::optional<Page> ReadForm(const std::string& imagePath, const PipelineContext& context) {
    std::variant<Page, PageError> read = imaging::ReadSpecimen(context.files, imagePath);
    if (Page* const page = std::get_if<Page>(&read))
        return std::move(*page);
    const PageError error = std::get<PageError>(read);
    context.person.ShowMessage("",
                               error == PageError::TooManyColors ? kTooManyColors : imaging::ReasonOf(error));
    return std::nullopt;
}

void ShowMessage(const PipelineContext& context, std::string_view text) {
    context.person.SetPanel(app::Panel::Message, text);
}

// False when the sizes make too much work of the page; the operator has been told then.
bool RunSteps(BoxAnalysis& analysis, const PipelineContext& context) {
    const std::vector<PipelineStep>& steps = PipelineSteps();
    context.person.SetProgressRange(static_cast<int>(steps.size()));
    int number = 0;
    for (const PipelineStep& step : steps) {
        ShowMessage(context, step.Text);
        context.person.SetProgress(++number);
        step.Run(analysis);
    }
    ShowMessage(context, "Identifying OMR boxes...");
    IdentifyBoxes(analysis);
    if (analysis.Work.IsSpent()) {
        context.person.ShowMessage("", kTooMuchWork);
        return false;
    }
    ShowMessage(context, std::to_string(analysis.Boxes.size()) + " OMR Boxes identified");
    return true;
}

std::string WholeSeconds(double seconds) {
    return std::to_string(static_cast<long long>(std::nearbyint(seconds)));
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
                                           const PipelineContext& context) {
    const double started = context.clock.Seconds();
    ShowMessage(context, "Reading image...");
    std::optional<Page> page = ReadForm(imagePath, context);
    if (!page)
        return std::nullopt;

    BoxAnalysis analysis(std::move(page->grid), sizes, reach);
    if (!RunSteps(analysis, context))
        return std::nullopt;
    SortBoxes(analysis.Boxes, analysis.WorkGrid.Width());

    FoundBoxes found{std::move(analysis.Boxes), analysis.WorkGrid.Width(), analysis.WorkGrid.Rows(),
                     page->DPI_X, page->DPI_Y};
    context.person.SetPanel(app::Panel::ElapsedTime,
                            WholeSeconds(context.clock.Seconds() - started) + " Sec.");
    context.log.LogProfileEvent("New Profile: <" + profileName + "> " + std::to_string(found.Boxes.size()) +
                                " OMR Boxes Identified.");
    return found;
}

}  // namespace tavrene::boxes
