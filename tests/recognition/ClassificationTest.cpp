#include <gtest/gtest.h>

#include "app/Numeric.h"
#include "recognition/Classification.h"
#include "recognition/MarkReading.h"
#include "support/TestForm.h"

namespace tavrene::recognition {
namespace {

using profiles::ProfileRecord;
using test::TestForm;

class ClassificationTest : public ::testing::Test {
  protected:
    Classification Classify(const imaging::Page& page, const std::vector<ProfileRecord>& profiles) {
        Classification result = ClassifyImage(page, profiles);
        line_ = ClassificationLine("scan.tif", result, profiles);
        return result;
    }

    TestForm form_ = TestForm::Grid(4, 3);
    std::string line_;
};

TEST_F(ClassificationTest, FindsTheFormWhereverItLiesWithinReach) {
    for (const auto& [dx, dy] : {std::pair{0, 0}, std::pair{-25, 25}, std::pair{25, -25}, std::pair{7, -3}}) {
        const Classification result = Classify(form_.PageOf({.dx = dx, .dy = dy}), {form_.Record("Form")});
        ASSERT_EQ(result.winner, 0) << dx << "," << dy;
        EXPECT_EQ(result.matches[0].Confidence, 100);
        // An outline passes at nine tenths, so a neighbouring shift may be met first, never one farther away.
        EXPECT_NEAR(result.matches[0].shifts[0].dx, dx, 1);
        EXPECT_NEAR(result.matches[0].shifts[0].dy, dy, 1);
        EXPECT_EQ(line_, "Image [scan.tif] classified as [Form] with confidence [100.00] ");
    }
    const Classification far = Classify(form_.PageOf({.dx = 27}), {form_.Record("Form")});
    EXPECT_EQ(far.winner, -1);
    EXPECT_EQ(far.matches[0].found, 0);
    EXPECT_EQ(far.matches[0].tested, 12);
    EXPECT_EQ(line_, "Image [scan.tif] unclassified");
}

TEST_F(ClassificationTest, HalfOfTheOutlinesIsTooLittleAndATieGoesToTheFirst) {
    const imaging::Page half = form_.PageOf({.missing = {1, 2, 3, 4, 5, 6}});
    const Classification low = Classify(half, {form_.Record("Form")});
    EXPECT_EQ(low.winner, -1);
    EXPECT_EQ(low.matches[0].Confidence, 50);
    EXPECT_EQ(line_, "Image [scan.tif] unclassified as [Form] with LOW confidence [50.00] ");

    const imaging::Page most = form_.PageOf({.missing = {1, 2, 3, 4, 5}});
    EXPECT_EQ(Classify(most, {form_.Record("Form")}).winner, 0);
    EXPECT_EQ(line_, "Image [scan.tif] classified as [Form] with confidence [58.00] ");

    const imaging::Page whole = form_.PageOf({});
    EXPECT_EQ(Classify(whole, {form_.Record("First"), form_.Record("Second")}).winner, 0);
    EXPECT_EQ(Classify(most, {form_.Record("Off", false), form_.Record("On")}).winner, 1);
    // Every profile is sampled, also behind one that has matched.
    EXPECT_EQ(Classify(whole, {form_.Record("First"), form_.Record("Second")}).matches[1].tested, 12);
}

// Of the 96 cells printed the profile expects 92, so 83 of them find the box and 82 do not.
TEST_F(ClassificationTest, NineTenthsOfAnOutlineFindItsBox) {
    for (const auto& [gap, found] : {std::pair{13, 12}, std::pair{14, 0}}) {
        imaging::Page page = form_.PageOf({});
        for (const profiles::OmrBox& box : form_.boxes) {
            for (int cell = 0; cell < gap; ++cell)
                page.grid.SetInk(box.L + 5 + cell, form_.height - box.B, false);
        }
        EXPECT_EQ(Classify(page, {form_.Record("Form")}).matches[0].found, found) << gap;
    }
}

TEST_F(ClassificationTest, AProfileWithoutBoxesEndsTheScan) {
    const imaging::Page page = form_.PageOf({});
    const TestForm empty;
    const Classification hidden = Classify(page, {empty.Record("Empty", false), form_.Record("Form")});
    EXPECT_EQ(hidden.winner, -1);
    EXPECT_EQ(hidden.matches[1].tested, 0);
    EXPECT_EQ(Classify(page, {form_.Record("Form"), empty.Record("Empty")}).winner, 0);
}

TEST_F(ClassificationTest, ScalesTheProfileToTheImage) {
    TestForm large = form_;
    large.dpi = 300;
    large.width = 900;
    large.height = 750;
    for (profiles::OmrBox& box : large.boxes) {
        for (std::int16_t* ordinate : {&box.L, &box.T, &box.R, &box.B})
            *ordinate = app::RoundToInt16(*ordinate * 1.5);
    }
    // A printed outline of a larger box has more cells than the profile expects, so it is found all the
    // sooner.
    imaging::Page page = large.PageOf({.checked = {3}});
    const ProfileRecord profile = form_.Record("Form");
    Classification result = Classify(page, {profile});
    ASSERT_EQ(result.winner, 0);
    SpreadShifts(profile, result.matches[0].shifts);
    const std::vector<MarkReading> marks = ReadMarks(page, profile, result.matches[0].shifts, 8);
    EXPECT_TRUE(marks[2].Checked);
    EXPECT_FALSE(marks[1].Checked);

    page.DPI_X = page.DPI_Y = 0;  // no resolution: taken as it is, so the boxes are elsewhere
    EXPECT_EQ(Classify(page, {profile}).winner, -1);
}

TEST_F(ClassificationTest, NeverFindsABoxWithoutOutline) {
    TestForm flat = form_;
    for (profiles::OmrBox& box : flat.boxes)
        std::swap(box.L, box.R);
    imaging::Page page = form_.PageOf({});
    for (int row = 0; row < page.grid.Rows(); ++row) {
        for (int column = 0; column < page.grid.Columns(); ++column)
            page.grid.SetInk(column, row);
    }
    EXPECT_EQ(Classify(page, {flat.Record("Swapped")}).winner, -1);
}

}  // namespace
}  // namespace tavrene::recognition
