#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "app/Numeric.h"
#include "reading/ReadingPage.h"
#include "reading/ReadingScore.h"
#include "recognition/precise/MapSearch.h"
#include "recognition/precise/PreciseReading.h"
#include "recognition/precise/SecondOpinion.h"
#include "recognition/precise/ShiftFit.h"

namespace tavrene::recognition {
namespace {

using samples::BlankForm;
using samples::FormDesign;
using samples::FormKind;
using samples::ScanWear;

constexpr int kDpi = 150;
constexpr std::int16_t kThreshold = 8;

// Profiles with their prints, and a blank sheet of each that can be marked and scanned.
class PreciseReadingTest : public ::testing::Test {
  protected:
    std::size_t Add(const FormDesign& design, bool withSpecimen = true, int dpi = kDpi) {
        forms_.push_back(PaintBlank(design, dpi));
        profiles_.push_back(forms_.back().Profile);
        prints_.push_back(withSpecimen ? TakePrint(CleanScan(forms_.back().Page), profiles_.back())
                                       : SpecimenPrint{});
        return forms_.size() - 1;
    }

    // Every third box filled.
    samples::Canvas Filled(std::size_t form) const {
        samples::Canvas page = forms_[form].Page;
        for (std::size_t k = 0; k < forms_[form].Areas.size(); k += 3) {
            const samples::MarkArea& area = forms_[form].Areas[k];
            page.FillRect(static_cast<int>(area.x) + 3, static_cast<int>(area.y) + 3,
                          static_cast<int>(area.width) - 6, static_cast<int>(area.height) - 6);
        }
        return page;
    }

    PreciseReading Read(const imaging::Page& page) const {
        return ReadPrecisely(
            page, profiles_, [this](std::size_t index) { return &prints_[index]; }, kThreshold);
    }

    PreciseReading ReadForm(std::size_t form, const ScanWear& wear) {
        return Read(Scan(Filled(form), wear, dice_));
    }

    void ExpectRight(std::size_t form, const PreciseReading& reading) const {
        ASSERT_EQ(reading.winner, static_cast<int>(form));
        ASSERT_EQ(reading.marks.size(), forms_[form].Areas.size());
        for (std::size_t k = 0; k < reading.marks.size(); ++k)
            EXPECT_EQ(reading.marks[k].Checked, k % 3 == 0) << reading.marks[k].Name;
    }

    std::vector<BlankForm> forms_;
    std::vector<profiles::ProfileRecord> profiles_;
    std::vector<SpecimenPrint> prints_;
    samples::Random dice_{5};
};

TEST_F(PreciseReadingTest, ReadsFormsThatLieAskewOrAreWorn) {
    Add({FormKind::Table, 4});
    const std::size_t form = Add({FormKind::Survey, 3});
    const ScanWear wears[] = {{},
                              {.TiltDegrees = 2, .ShiftX = -7},
                              {.StretchX = 0.03, .StretchY = -0.01},
                              {.Bend = 0.5},
                              {.ShiftY = 10, .Noise = 0.03},
                              {.Thin = 0.4, .BlackEdges = 4, .Holes = true}};
    for (const ScanWear& wear : wears) {
        const PreciseReading reading = ReadForm(form, wear);
        ExpectRight(form, reading);
        EXPECT_FALSE(reading.turned);
        EXPECT_GT(reading.Confidence, 90);
    }
}

TEST_F(PreciseReadingTest, EachBoxIsPlacedToThePixel) {
    const std::size_t form = Add({FormKind::TwoColumns, 3});
    constexpr double kPixel = 25.4 / kDpi;
    const PreciseReading reading = ReadForm(form, {.ShiftX = 5 * kPixel, .ShiftY = -9 * kPixel});
    ExpectRight(form, reading);
    for (const MarkReading& mark : reading.marks) {
        EXPECT_NEAR(mark.Shift.dx, 5, 1) << mark.Name;
        EXPECT_NEAR(mark.Shift.dy, 9, 1) << mark.Name;  // up
    }
}

TEST_F(PreciseReadingTest, AnUpsideDownPageIsReadWhereItsBoxesAre) {
    const std::size_t form = Add({FormKind::Survey, 3});
    const ScanWear wear{.TiltDegrees = 1, .UpsideDown = true};
    const PreciseReading reading = ReadForm(form, wear);
    ExpectRight(form, reading);
    EXPECT_TRUE(reading.turned);
    // The first box of the profile is near the top; on the page it is as near the bottom.
    const samples::MarkArea& first = forms_[form].Areas.front();
    const double width = forms_[form].Page.Width();
    const double height = forms_[form].Page.Height();
    EXPECT_NEAR(reading.marks.front().rect.left, width - first.x - first.width, 0.02 * width + 3);
    EXPECT_NEAR(reading.marks.front().rect.top, height - first.y - first.height, 0.02 * width + 3);
    // A document keeps shifts alone. They read the same again, also where some are missing.
    std::vector<std::optional<BoxShift>> known;
    for (std::size_t k = 0; k < reading.marks.size(); ++k) {
        known.emplace_back(reading.marks[k].Shift);
        if (k % 4 == 1)
            known.back().reset();
    }
    samples::Random dice(5);
    const imaging::Page page = Scan(Filled(form), wear, dice);
    const FormPlaces places = CompleteShifts(page, profiles_[form], known);
    EXPECT_TRUE(places.turned);
    for (std::size_t k = 0; k < places.shifts.size(); ++k) {
        EXPECT_NEAR(places.shifts[k].dx, reading.marks[k].Shift.dx, 3) << k;
        EXPECT_NEAR(places.shifts[k].dy, reading.marks[k].Shift.dy, 3) << k;
    }
    const auto again = ReadMarksPrecisely(page, profiles_[form], places, &prints_[form], kThreshold);
    ASSERT_EQ(again.size(), reading.marks.size());
    for (std::size_t k = 0; k < again.size(); ++k)
        EXPECT_EQ(again[k].Checked, reading.marks[k].Checked) << again[k].Name;
}

// A fit that stretched a page through itself would explain a bent one as upright to a fraction of a pixel.
TEST_F(PreciseReadingTest, ABentPageIsNotTakenForUpright) {
    const imaging::Page page = CleanScan(samples::Canvas(2480, 3508, 300));
    profiles::ProfileRecord profile;
    profile.DPI_X = profile.DPI_Y = 300;
    std::vector<BoxShift> upsideDown;
    for (const int column : {300, 1100, 1900}) {
        for (int row = 400; row < 3200; row += 100) {
            profile.Boxes.push_back({.Name = {},
                                     .L = static_cast<std::int16_t>(column),
                                     .R = static_cast<std::int16_t>(column + 40),
                                     .lower = static_cast<std::int16_t>(row + 40),
                                     .upper = static_cast<std::int16_t>(row)});
            upsideDown.push_back(
                {app::RoundToInt16(2480 - 40 - 2 * column), app::RoundToInt16(-(3508 - 40 - 2 * row))});
        }
    }
    for (const double bend : {3, 6, 12}) {  // pixels
        for (int phase = 0; phase < 8; ++phase) {
            std::vector<std::optional<BoxShift>> known;
            for (std::size_t k = 0; k < upsideDown.size(); ++k) {
                const double right = bend * std::sin(profile.Boxes[k].upper / 600.0 + phase);
                const double up = bend * std::sin(profile.Boxes[k].L / 600.0 + 2 * phase);
                known.push_back({{app::RoundToInt16(upsideDown[k].dx + right),
                                  app::RoundToInt16(upsideDown[k].dy + up)}});
            }
            EXPECT_TRUE(LiesUpsideDown(page, profile, known)) << bend << " " << phase;
        }
    }
}

TEST_F(PreciseReadingTest, ASecondOpinionSaysWhereReadingsDiffer) {
    const std::size_t form = Add({FormKind::Survey, 3});
    const PreciseReading precise = ReadForm(form, {});
    std::vector<MarkReading> marks = precise.marks;
    EXPECT_TRUE(CompareReadings(0, marks, precise).Agrees());
    marks[4].Checked = !marks[4].Checked;
    EXPECT_EQ(CompareReadings(0, marks, precise).boxes, std::vector<std::size_t>{4});
    EXPECT_TRUE(CompareReadings(-1, {}, precise).onlyPrecise);
    EXPECT_TRUE(CompareReadings(1, marks, precise).otherProfile);
    EXPECT_TRUE(CompareReadings(1, marks, PreciseReading{}).otherProfile);
    EXPECT_TRUE(CompareReadings(-1, {}, PreciseReading{}).Agrees());
}

TEST_F(PreciseReadingTest, StrangersAndSistersAreToldApart) {
    const std::size_t form = Add({FormKind::Survey, 3});
    const std::size_t sister = Add({FormKind::Survey, 3, 0, samples::SisterTrait::OneMoreRow});
    Add({FormKind::Few, 8, 1});
    Add({FormKind::OneColumn, 8});
    const ScanWear wear{.TiltDegrees = 0.8};
    ExpectRight(form, ReadForm(form, wear));
    ExpectRight(sister, ReadForm(sister, wear));
    using samples::StrangerKind;
    for (const StrangerKind kind :
         {StrangerKind::Text, StrangerKind::RuledTable, StrangerKind::Ovals, StrangerKind::OtherForm})
        EXPECT_EQ(Read(Scan(PaintStranger(kind, 77, kDpi), wear, dice_)).winner, -1);
    for (const int pitch : {0, 7}) {
        samples::Canvas graph(1240, 1754, kDpi);
        for (int line = 30; pitch > 0 && line < 1720; line += pitch) {
            graph.FillRect(30, line, 1180, 1);
            graph.FillRect(std::min(line, 1210), 30, 1, 1690);
        }
        EXPECT_EQ(Read(Scan(graph, {}, dice_)).winner, -1) << "graph paper of so many pixels: " << pitch;
    }
}

TEST_F(PreciseReadingTest, FewBoxesAndOneColumnAreTurnedIntoPlaceByThePrint) {
    const std::size_t one = Add({FormKind::Few, 21, 1});
    const std::size_t three = Add({FormKind::Few, 22, 3});
    const std::size_t column = Add({FormKind::OneColumn, 23});
    for (const std::size_t form : {one, three, column})
        ExpectRight(form, ReadForm(form, {.TiltDegrees = 1.5, .ShiftX = 3}));
}

TEST_F(PreciseReadingTest, WithoutASpecimenOnlyWhatChanceCannotMakeIsTaken) {
    const std::size_t form = Add({FormKind::Survey, 3}, false);
    const ScanWear wear{.TiltDegrees = 1};
    ExpectRight(form, ReadForm(form, wear));
    Add({FormKind::Few, 21, 2}, false);
    EXPECT_EQ(Read(Scan(PaintStranger(samples::StrangerKind::OtherForm, 78, kDpi), wear, dice_)).winner, -1);
}

TEST_F(PreciseReadingTest, AThinPrintIsBetterThanNone) {
    Add({FormKind::Survey, 3}, false);
    const std::size_t form = Add({FormKind::Survey, 3});
    // A fifth of the print is not on the page.
    std::vector<precise::CellPoint>& points = prints_[form].points;
    points.resize(points.size() * 5 / 4, {20, 20});
    ExpectRight(form, ReadForm(form, {}));
}

TEST_F(PreciseReadingTest, LettersAreKnownFromASpecimenOfAnotherResolution) {
    const FormDesign design{FormKind::Letters, 3};
    const std::size_t form = Add(design, true, 200);
    prints_[form] = TakePrint(CleanScan(PaintBlank(design, 400).Page), profiles_[form]);
    const PreciseReading reading = ReadForm(form, {.TiltDegrees = 1});
    ExpectRight(form, reading);
    for (const MarkReading& mark : reading.marks)
        EXPECT_TRUE(mark.Checked || mark.fill < 2) << mark.Name << " " << mark.fill;
}

TEST_F(PreciseReadingTest, OnlyActiveProfilesWithBoxesCount) {
    const std::size_t form = Add({FormKind::Survey, 3});
    profiles_.insert(profiles_.begin(), profiles::ProfileRecord{});
    profiles_.front().Active = true;
    prints_.insert(prints_.begin(), SpecimenPrint{});
    EXPECT_EQ(ReadForm(form, {}).winner, 1) << "an empty profile does not end the search";
    profiles_[1].Active = false;
    EXPECT_EQ(ReadForm(form, {}).winner, -1);
}

TEST_F(PreciseReadingTest, ASpecimenThatWasReplacedSaysNothing) {
    const BlankForm form = samples::PaintBlank({FormKind::Survey, 3}, kDpi);
    const BlankForm other = samples::PaintBlank({FormKind::Table, 9}, kDpi);
    EXPECT_TRUE(TakePrint(CleanScan(form.Page), form.Profile).belongs);
    EXPECT_FALSE(TakePrint(CleanScan(other.Page), form.Profile).belongs);
}

TEST(PageMapTest, OneSightingShiftsAndAColumnTurns) {
    using precise::CellPoint;
    const CellPoint middle{400, 500};
    const precise::Sighting one[] = {{{100, 100}, {110, 95}, 1}};
    const precise::PageMap shifted = FitMap(middle, one, 50);
    EXPECT_NEAR(shifted({100, 100}).x, 110, 1.5);
    EXPECT_LT(std::abs(shifted.Turn()), 0.02);

    std::vector<precise::Sighting> column;
    for (int k = 0; k < 10; ++k) {
        const CellPoint place{120, 100.0 + 80 * k};
        column.push_back({place, {place.x - 0.03 * (place.y - 500), place.y + 0.03 * (place.x - 400)}, 1});
    }
    const precise::PageMap turned = FitMap(middle, column, 50);
    EXPECT_NEAR(turned.Turn(), 0.03, 0.001);
    EXPECT_NEAR(turned.xByX, 0, 0.003);
    EXPECT_NEAR(turned({700, 300}).y, 300 + 0.03 * 300, 1.5) << "the other side of the page follows";
}

TEST(WilsonTest, FewBoxesCountLess) {
    EXPECT_LT(precise::LowerBound(1, 1), precise::LowerBound(90, 100));
    EXPECT_NEAR(precise::LowerBound(100, 100), 0.963, 0.001);
    EXPECT_EQ(precise::LowerBound(0, 0), 0);
}

// Classes of scans with what must be right of two pages each, in percent of all boxes.
TEST(ReadingLedger, NoClassReadsLessThanBefore) {
    const std::map<std::string, double> floors = {{"100 dpi, tilt 0.7°", 100},
                                                  {"mixed", 99},
                                                  {"letters in the boxes", 100},
                                                  {"stamps over boxes", 100},
                                                  {"sister: a box moved", 100}};
    std::size_t known = 0;
    for (const samples::ReadingClass& kind : samples::ReadingClasses()) {
        if (!floors.contains(kind.Name))
            continue;
        ++known;
        const samples::ReadingRow row = ScoreClass(kind, 2, {.Even = true});
        EXPECT_EQ(row.Precise.Recognised, 2U) << kind.Name;
        EXPECT_GE(100.0 * static_cast<double>(row.Precise.Right),
                  floors.at(kind.Name) * static_cast<double>(row.Boxes))
            << kind.Name;
    }
    EXPECT_EQ(known, floors.size());
}

}  // namespace
}  // namespace tavrene::recognition
