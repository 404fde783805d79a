#include "ReviewWorld.h"
#include "painter/ImageFiles.h"

namespace tavrene {
namespace {

using test::Names;
using test::TestForm;

// Review of forms that precise alignment has read.
class PreciseReviewTest : public test::ReviewWorld {
  protected:
    PreciseReviewTest() {
        form_ = TestForm::Grid(4, 3);
        AddSpecimenProfile("Form", form_);
        reading_.preciseAlignment = true;
    }

    // The forms were read before the profile got its last box, and are opened and read anew with it.
    void OpenWithAnotherBox(TestForm before) {
        before.boxes.pop_back();
        test::WriteText(folders_.Profiles + "Form.Tvp", before.ProfileText(folders_.ProfileImages + "Form"));
        Process();
        AddSpecimenProfile("Form", form_);
        EnterReview();
        person_.answers = {app::Answer::Yes};
        Open(0);
    }

    // Where box `number` of the form lies on a scan of it that is upside down.
    imaging::PageRect Turned(int number) const {
        const profiles::OmrBox& box = form_.boxes[static_cast<std::size_t>(number) - 1];
        return {double(form_.width - 1 - box.R), double(form_.height - box.B), 0, 0};
    }

    void ExpectTurned() {
        EXPECT_TRUE(screen_.isTurned);
        ASSERT_EQ(screen_.rects.size(), 12U);
        for (const int number : {1, 7, 12}) {
            EXPECT_NEAR(screen_.rects[number].left, Turned(number).left, 2) << number;
            EXPECT_NEAR(screen_.rects[number].top, Turned(number).top, 2) << number;
        }
    }
};

TEST_F(PreciseReviewTest, AnUpsideDownFormIsShownTheRightWayUpHoweverItIsLeft) {
    AddProfile("Narrow", TestForm::Grid(2, 1, 60));
    AddScan("a.tif", {.checked = {1}});
    AddScan("b.tif", {.checked = {2, 7}, .upsideDown = true});
    settings_.DisplayDuringProcess = true;
    const std::string scan = test::ReadText(folders_.ProcessIn + "b.tif");
    Process();
    ExpectTurned();
    EnterReview();
    Open(1);
    ExpectTurned();
    EXPECT_EQ(transcript_.LinesOf("row: ")[6], "7 Q7|1");
    Flip(7);
    Okay();
    Open(0);
    EXPECT_FALSE(screen_.isTurned);

    // Its places, and not the way of reading that is in force, tell how it lies.
    reading_ = {.secondOpinion = true};
    Open(1);
    ExpectTurned();
    EXPECT_EQ(transcript_.LinesOf("row: ")[6], "7 Q7|0");
    EXPECT_EQ(transcript_.LinesOf("ink: ")[6], "7 100.0% ?") << "ink and mark differ";

    // Against another profile and back.
    Choose("Narrow");
    Choose("Form");
    ExpectTurned();
    EXPECT_TRUE(ResultHas("b.xml", "Q7\" Shift=\""));
    EXPECT_EQ(transcript_.LinesOf("row: ")[6], "7 Q7|1");
    EXPECT_EQ(test::ReadText(folders_.ProcessOut + "b.tif"), scan);
}

TEST_F(PreciseReviewTest, LostPlacesAreSearchedAsFormsAreRead) {
    AddSpecimenProfile("Twin", form_);
    AddScan("a.tif", {.checked = {2}, .dx = 45, .dy = -50});
    ProcessAndReview();
    Open(0);
    const auto places = screen_.rects;
    Choose("Twin");
    EXPECT_EQ(screen_.rects, places);
    Okay();
    EXPECT_FALSE(ResultHas("a.xml", "Shift")) << "a change of profile writes none";
    Open(0);
    EXPECT_EQ(screen_.rects, places);
    Okay();
    reading_ = {};
    Open(0);
    EXPECT_NE(screen_.rects, places) << "the plain reading does not look that far";
}

TEST_F(PreciseReviewTest, ABoxThatWasAddedLiesWhereTheOthersSay) {
    AddScan("a.tif", {.checked = {2, 12}, .dx = 40, .dy = -30});
    OpenWithAnotherBox(form_);
    EXPECT_EQ(transcript_.LinesOf("ask: ").size(), 1U);
    EXPECT_TRUE(ResultHas("a.xml", "<OMR Name=\"Q12\" Shift=\"40,-30\" Checked=\"1\""));
}

TEST_F(PreciseReviewTest, ABoxThatWasMovedInTheProfileIsNotReadAtItsOldShift) {
    form_.boxes[6].L += 60;
    form_.boxes[6].R += 60;
    AddScan("a.tif", {.checked = {7}, .upsideDown = true});
    OpenWithAnotherBox(TestForm::Grid(4, 3));
    ExpectTurned();
    const auto marks = recognition::ResultDocument::Load(files_, folders_.ProcessOut + "a.xml").Marks();
    EXPECT_TRUE(marks[6].Checked);
}

TEST_F(PreciseReviewTest, ASecondOpinionPutsBoxesInDoubt) {
    reading_ = {.secondOpinion = true};
    // 26 pixels: 5 % of the whole box and 9 % of its inner part.
    samples::Canvas page = form_.Paint({});
    page.FillRect(form_.boxes[2].L + 8, form_.boxes[2].T + 10, 13, 2);
    samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff, folders_.ProcessIn + "a.tif");
    ProcessAndReview();
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("row: ")[2], "3 Q3|0");
    EXPECT_EQ(transcript_.LinesOf("ink: ")[1], "2 0.0%");
    EXPECT_EQ(transcript_.LinesOf("ink: ")[2], "3 4.9% ?");
    files_.Delete(folders_.ProcessOut + "a.tif");
    TestForm::Grid(3, 2, 40, 200, 200).SaveScan(folders_.ProcessOut + "a.tif", {});
    Open(0);
    EXPECT_EQ(transcript_.LinesOf("ink: ")[0], "1 0.0% ?") << "another form";
    EXPECT_EQ(transcript_.LinesOf("ink: ")[1], "2 0.0%") << "which is one doubt of the form";
}

}  // namespace
}  // namespace tavrene
