#include <gtest/gtest.h>

#include "recognition/MarkReading.h"
#include "support/TestForm.h"

namespace tavrene::recognition {
namespace {

using profiles::OmrBox;
using profiles::ProfileRecord;
using test::TestForm;

ProfileRecord ProfileOf(std::vector<OmrBox> boxes) {
    TestForm form;
    form.boxes = std::move(boxes);
    return form.Record("Form");
}

OmrBox BoxAt(int left, int top, int width = 24, int height = 24) {
    const auto ordinate = [](int value) { return static_cast<std::int16_t>(value); };
    return {"Q", ordinate(left), ordinate(top), ordinate(left + width), ordinate(top + height)};
}

TEST(SpreadShiftsTest, LaysALineThroughTheExtremeBoxes) {
    const ProfileRecord profile = ProfileOf({BoxAt(100, 400), BoxAt(500, 100), BoxAt(300, 250)});
    std::vector<BoxShift> shifts = {{-2, 4}, {4, -5}, {9, 9}};
    SpreadShifts(profile, shifts);
    // Halves go to the even neighbour: 0.5 between -5 and 4 becomes 0; what the middle box had is
    // overwritten.
    EXPECT_EQ(shifts, (std::vector<BoxShift>{{-2, 4}, {4, -5}, {1, 0}}));
}

TEST(SpreadShiftsTest, ReflectsBoxesBeyondTheLowestSampledOne) {
    // Of 21 boxes every second one is sampled; the second box lies farther left than all that are.
    std::vector<OmrBox> boxes;
    for (int k = 0; k < 21; ++k)
        boxes.push_back(BoxAt(k == 1 ? 100 : 200 + 10 * k, 40 + 20 * k));
    const ProfileRecord profile = ProfileOf(boxes);
    std::vector<BoxShift> shifts(21);
    shifts[20].dx = 10;
    SpreadShifts(profile, shifts);
    EXPECT_EQ(shifts[1].dx, 5);  // the line would give -5
    EXPECT_EQ(shifts[10].dx, 5);
}

TEST(SpreadShiftsTest, RefusesBoxesThatShareOneLine) {
    std::vector<BoxShift> shifts(2);
    EXPECT_THROW(SpreadShifts(ProfileOf({BoxAt(100, 50), BoxAt(100, 90)}), shifts), ReadingError);
    EXPECT_THROW(SpreadShifts(ProfileOf({BoxAt(100, 50), BoxAt(200, 50)}), shifts), ReadingError);
    EXPECT_THROW(SpreadShifts(ProfileOf({BoxAt(100, 50)}), shifts), ReadingError);
}

TEST(ReadMarksTest, MeasuresTheInnerPartAgainstTheWholeInterior) {
    TestForm form;
    form.boxes = {BoxAt(100, 100, 21, 21)};  // interior 20 x 20 = 400, inner field 14 x 14
    const ProfileRecord profile = form.Record("Form");
    const std::vector<BoxShift> still(1);
    imaging::Page page = form.PageOf({});
    const int lowest = form.height - 121 + 4;
    for (int k = 0; k < 31; ++k)
        page.grid.SetInk(104 + k % 14, lowest + k / 14);
    EXPECT_FALSE(ReadMarks(page, profile, still, 8)[0].Checked);
    page.grid.SetInk(117,
                     lowest + 13);  // the far corner of the inner part: the 32nd cell of 400 is 8 percent
    const MarkReading exact = ReadMarks(page, profile, still, 8)[0];
    EXPECT_EQ(exact.fill, 8.0);
    EXPECT_TRUE(exact.Checked);
    EXPECT_EQ(exact.rect, (imaging::PageRect{100, 100, 21, 21}));
    page.grid.SetInk(118, lowest + 13);  // outside it, and not counted
    page.grid.SetInk(104, lowest - 1);
    EXPECT_EQ(ReadMarks(page, profile, still, 8)[0].fill, 8.0);

    const std::vector<BoxShift> moved = {{3, -2}};
    const imaging::Page shifted = form.PageOf({.checked = {1}, .dx = 3, .dy = -2});
    const MarkReading reading = ReadMarks(shifted, profile, moved, 8)[0];
    EXPECT_EQ(reading.fill, 14.0 * 14.0 * 100.0 / 400.0);
    EXPECT_EQ(reading.rect, (imaging::PageRect{103, 102, 21, 21}));
}

TEST(ReadMarksTest, KeepsTheLimitsOfItsArithmetic) {
    TestForm form;
    form.boxes = {BoxAt(50, 50, 201, 201), BoxAt(300, 50, 7, 30), BoxAt(300, 200, 182, 182)};
    imaging::Page page = form.PageOf({.checked = {1, 2, 3}});
    const std::vector<BoxShift> still(3);
    const std::vector<MarkReading> marks = ReadMarks(page, form.Record("Form"), still, 8);
    EXPECT_LT(marks[0].fill, 0.0);  // 200 x 200 wraps to -25,536
    EXPECT_FALSE(marks[0].Checked);
    EXPECT_EQ(marks[1].fill, 0.0);  // nothing is left 4 pixels inside
    EXPECT_TRUE(marks[2].Checked);  // 181 x 181 is the largest that fits

    form.boxes = {BoxAt(50, 50, 1, 20)};
    EXPECT_THROW(ReadMarks(page, form.Record("Form"), still, 8), ReadingError);
    form.boxes = {BoxAt(20'000, 50), BoxAt(590, 480, 30, 30)};
    for (const MarkReading& mark : ReadMarks(page, form.Record("Form"), still, 8))
        EXPECT_FALSE(mark.Checked);
}

}  // namespace
}  // namespace tavrene::recognition
