#include <gtest/gtest.h>

#include "recognition/ProfileAdvice.h"
#include "support/TestForm.h"

namespace tavrene::recognition {
namespace {

using test::TestForm;

profiles::OpenProfile ProfileOf(const std::vector<profiles::OmrBox>& boxes) {
    profiles::OpenProfile profile;
    profile.IsOpen = profile.Active = true;
    profile.BoxList = boxes;
    profile.Count = static_cast<std::int16_t>(boxes.size());
    profile.ImageWidth = 600;
    profile.ImageHeight = 1200;
    return profile;
}

struct Trap {
    std::string name;
    std::vector<profiles::OmrBox> boxes;
    std::vector<std::string> wanted;  ///< A piece of each piece of advice, in order.
};

std::vector<profiles::OmrBox> With(std::vector<profiles::OmrBox> boxes, const profiles::OmrBox& change) {
    boxes[1] = change;
    return boxes;
}

TEST(ProfileAdvice, TellsOfEachTrapAndOfNoOther) {
    const std::vector<profiles::OmrBox> good = TestForm::Grid(3, 4).boxes;
    // Of 24 boxes every second one is sampled: all in the left of two columns but for one far row.
    std::vector<profiles::OmrBox> narrow = TestForm::Grid(2, 12).boxes;
    for (std::size_t k = 0; k < narrow.size(); ++k) {
        narrow[k].L = static_cast<std::int16_t>(k % 2 == 0 ? 60 + static_cast<int>(k) : 500);
        narrow[k].R = static_cast<std::int16_t>(narrow[k].L + 24);
    }
    std::vector<profiles::OmrBox> upsideDown = good;
    for (profiles::OmrBox& box : upsideDown)
        std::swap(box.T, box.B);
    const std::vector<Trap> traps = {
        {"none", good, {}},
        {"other order", upsideDown, {}},
        {"row", TestForm::Grid(4, 1).boxes, {"all lie in one row"}},
        {"column", TestForm::Grid(1, 4).boxes, {"all lie in one column"}},
        {"uneven row",
         With(TestForm::Grid(4, 1).boxes, {"Q2", 114, 72, 138, 96}),
         {"All boxes lie in one row, so this profile may match"}},
        {"two columns of which one is sampled", TestForm::Grid(2, 12).boxes, {"all lie in one column"}},
        {"one box",
         TestForm::Grid(1, 1).boxes,
         {"all lie in one column", "all lie in one row", "so few boxes (1)"}},
        {"narrow", narrow, {"near one column"}},
        {"no boxes", {}, {"no profile behind it"}},
        {"line", With(good, {"flat", 60, 70, 90, 70}), {"Box flat has no area"}},
        {"area of 16 bits", With(good, {"big", 10, 10, 267, 267}), {"Box big has no area"}},
        {"outside", With(good, {"far", 590, 70, 614, 94}), {"Box far lies outside"}},
        {"equal names", With(good, {"Q1", 114, 70, 138, 94}), {"2 boxes have the name \"Q1\""}},
        {"default names",
         With(good, {"Un-named-2", 114, 70, 138, 94}),
         {"1 of 12 boxes still has the name"}}};
    for (const Trap& trap : traps) {
        const std::vector<app::Notice> advice = AdviseOn(ProfileOf(trap.boxes));
        ASSERT_EQ(advice.size(), trap.wanted.size()) << trap.name;
        for (std::size_t k = 0; k < advice.size(); ++k)
            EXPECT_NE(advice[k].text.find(trap.wanted[k]), std::string::npos) << advice[k].text;
    }
}

TEST(ProfileAdvice, PreciseAlignmentNeedsNoSlopeButBoxesOfItsOwn) {
    const auto advice = AdviseOn(ProfileOf(TestForm::Grid(1, 4).boxes), {.preciseAlignment = true});
    ASSERT_EQ(advice.size(), 1U);
    EXPECT_NE(advice[0].text.find("may match forms"), std::string::npos) << advice[0].text;
    EXPECT_TRUE(AdviseOn(ProfileOf(TestForm::Grid(2, 12).boxes), {.preciseAlignment = true}).empty());
}

TEST(ProfileAdvice, LooksAtKeptBoxesAndAtTheCount) {
    profiles::OpenProfile profile = ProfileOf(TestForm::Grid(2, 2).boxes);
    profile.BoxList[1].Checked = profile.BoxList[3].Checked = false;
    profile.Count = 2;
    ASSERT_EQ(AdviseOn(profile).size(), 2U);
    EXPECT_NE(AdviseOn(profile)[0].text.find("one column"), std::string::npos);
    profile.Count = 3;
    EXPECT_NE(AdviseOn(profile)[0].text.find("it counts 3 boxes but holds 2"), std::string::npos);
    profile.IsOpen = false;
    EXPECT_TRUE(AdviseOn(profile).empty());
}

}  // namespace
}  // namespace tavrene::recognition
