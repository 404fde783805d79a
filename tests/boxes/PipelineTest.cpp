#include <gtest/gtest.h>

#include <tuple>

#include "boxes/BoxPages.h"
#include "boxes/ProfileImagePipeline.h"
#include "painter/ImageFiles.h"
#include "support/FakeClock.h"
#include "support/FakeOperator.h"
#include "support/FaultyFiles.h"
#include "support/TempFolder.h"

namespace tavrene::test {
namespace {

using samples::BoxSheet;
using samples::OuterSize;

constexpr boxes::BoxSizes kSizes{16, 38, 16, 34};

class BoxPipeline : public ::testing::Test {
  protected:
    BoxPipeline() { clock_.tick = 7.0; }

    std::optional<boxes::FoundBoxes> Find(const std::string& name) {
        return boxes::FindBoxesOnImage(folder_.File(name), "Survey", kSizes, boxes::ReachFor(kSizes),
                                       {files_, person_, log_, clock_, folder_.Path() + "/"});
    }

    // Three boxes in two lines, 25 x 25 pixels, and a caption.
    static samples::Canvas Form() {
        BoxSheet sheet(500, 400, 200, {.Thickness = 1}, 1);
        sheet.AddBox(300, 120, {26, 26});
        sheet.AddBox(100, 120, {26, 26});
        sheet.AddBox(200, 40, {26, 26});
        sheet.AddText(140, 140, 9, "Box one");
        return sheet.Page();
    }

    std::string LogText() const { return ReadText(folder_.File("TavreneBoxes-Profile-20240305.Log")); }

    TempFolder folder_;
    FaultyFiles files_;
    Transcript transcript_;
    FakeOperator person_{transcript_};
    FakeClock clock_;
    app::ActivityLog log_{files_, clock_, person_, folder_.Path() + "/"};
};

TEST_F(BoxPipeline, TellsEachStepAndHandsOverSortedBoxes) {
    samples::SaveImage(samples::ToBilevel(Form()), imaging::ImageFormat::Tiff, folder_.File("form.tif"));
    const std::optional<boxes::FoundBoxes> found = Find("form.tif");
    ASSERT_TRUE(found);
    std::vector<std::string> texts = {"Reading image..."};
    for (int step = 1; step <= 11; ++step)
        texts.push_back("Processing step " + std::to_string(step) + " of 11 " +
                        std::string(static_cast<std::size_t>(step), '.'));
    texts.emplace_back("Identifying OMR boxes...");
    texts.emplace_back("3 OMR Boxes identified");
    EXPECT_EQ(transcript_.LinesOf("panel Message: "), texts);
    EXPECT_EQ(transcript_.LinesOf("range: "), std::vector<std::string>{"11"});
    EXPECT_EQ(transcript_.LinesOf("progress: ").size(), 11U);
    EXPECT_EQ(transcript_.LinesOf("progress: ").back(), "11");
    EXPECT_EQ(transcript_.LinesOf("panel ElapsedTime: "), std::vector<std::string>{"7 Sec."});
    EXPECT_TRUE(transcript_.LinesOf("message: ").empty());
    EXPECT_NE(LogText().find("New Profile: <Survey> 3 OMR Boxes Identified.\r\n"), std::string::npos);

    EXPECT_EQ(std::tie(found->Width, found->Height, found->DPI_X, found->DPI_Y),
              std::tuple(500, 400, 200, 200));
    ASSERT_EQ(found->Boxes.size(), 3U);
    // Lower and upper edges are counted from the bottom.
    EXPECT_EQ(std::tie(found->Boxes[0].L, found->Boxes[0].T, found->Boxes[0].B),
              std::tuple(200, 399 - 65, 399 - 40));
    EXPECT_EQ(found->Boxes[1].L, 100);
    EXPECT_EQ(found->Boxes[2].L, 300);
    EXPECT_FALSE(files_.FileExists(folder_.File("temp.tif"))) << "a bilevel TIFF is read as it is";
}

TEST_F(BoxPipeline, OtherFileTypesGiveTheSameBoxesAndLeaveATiffCopy) {
    const samples::Canvas page = Form();
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff, folder_.File("form.tif"));
    samples::SaveImage(samples::ToColour(page, page, page), imaging::ImageFormat::Png,
                       folder_.File("form.PNG"));
    const std::vector<boxes::BoxRect> expected = Find("form.tif")->Boxes;
    EXPECT_EQ(Find("form.PNG")->Boxes, expected);
    files_.Move(folder_.File("temp.tif"), folder_.File("copy.tif"));
    EXPECT_EQ(Find("copy.tif")->Boxes, expected);
}

TEST_F(BoxPipeline, APageWithoutBoxesEndsWithNone) {
    const samples::Canvas blank(500, 400, 200);
    samples::SaveImage(samples::ToBilevel(blank), imaging::ImageFormat::Tiff, folder_.File("blank.tif"));
    EXPECT_TRUE(Find("blank.tif")->Boxes.empty());
    EXPECT_EQ(transcript_.LinesOf("panel Message: ").back(), "0 OMR Boxes identified");
}

TEST_F(BoxPipeline, RefusesBeforeAnyStep) {
    samples::SaveImage(samples::ToGrey(Form()), imaging::ImageFormat::Tiff, folder_.File("grey.tif"));
    WriteText(folder_.File("broken.tif"), "no image");
    EXPECT_FALSE(Find("grey.tif"));
    EXPECT_FALSE(Find("broken.tif"));
    EXPECT_FALSE(Find("missing.tif"));
    EXPECT_FALSE(Find("form.tiff"));
    EXPECT_EQ(transcript_.LinesOf("message: "),
              (std::vector<std::string>{"[] Image has more than 2 colors. cannot process.",
                                        "[] Image not in bitmap format", "[] Image not in bitmap format",
                                        "[] Image not in bitmap format"}));
    EXPECT_EQ(transcript_.LinesOf("panel Message: "), std::vector<std::string>(4, "Reading image..."));
    EXPECT_TRUE(transcript_.LinesOf("range: ").empty());
    EXPECT_TRUE(LogText().empty());
}

}  // namespace
}  // namespace tavrene::test
