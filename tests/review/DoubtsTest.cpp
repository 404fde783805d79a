#include <algorithm>

#include "ReviewWorld.h"
#include "painter/ImageFiles.h"
#include "profiles/BoxGroups.h"
#include "profiles/SampleForms.h"
#include "review/doubts/Doubts.h"
#include "review/doubts/GroupDoubts.h"
#include "support/SourceFolder.h"

namespace tavrene::review {
namespace {

using R = DoubtReason;

// A page of boxes as a run reads them at a threshold of 8 %.
std::vector<BoxEvidence> Page(const std::vector<double>& fills) {
    std::vector<BoxEvidence> boxes;
    for (const double fill : fills)
        boxes.push_back({.isChecked = fill >= 8, .fill = fill});
    return boxes;
}

TEST(DoubtsTest, WhatIsNearTheThresholdFollowsThePage) {
    const std::vector<double> bold = {0, 0, 1, 0, 0, 40, 38, 42, 40, 39};
    const std::vector<double> thin = {0, 0, 1, 0, 0, 10, 11, 12, 11, 10};
    const std::vector<double> dirty = {5, 4, 6, 5, 4, 40, 38, 42, 40, 39};
    const std::vector<double> few = {0, 40};
    const std::tuple<std::vector<double>, double, std::optional<R>> cases[] = {
        {bold, 3, std::nullopt},  {bold, 7, R::NearThreshold}, {bold, 12, R::NearThreshold},
        {bold, 25, std::nullopt}, {bold, 95, R::OverFull},     {thin, 3, R::NearThreshold},
        {thin, 9, std::nullopt},  {thin, 60, std::nullopt},    {thin, 95, R::OverFull},
        {dirty, 7, std::nullopt}, {few, 6, R::NearThreshold},  {few, 11, std::nullopt},
        {few, 95, std::nullopt}};
    for (const auto& [page, fill, doubt] : cases) {
        std::vector<double> fills = page;
        fills.push_back(fill);
        const BoxDoubts doubts = DoubtsOf(Page(fills), 8);
        EXPECT_EQ(doubts.back(), doubt) << fill << " among " << page.back();
        EXPECT_EQ(std::count(doubts.begin(), doubts.end(), std::nullopt),
                  std::ssize(doubts) - (doubt ? 1 : 0));
    }
}

TEST(DoubtsTest, OtherSignsPutABoxInDoubt) {
    std::vector<BoxEvidence> boxes = Page({0, 0, 50, 0, 50});
    boxes[0].isChecked = true;
    boxes[1].inkBeside = 30;
    boxes[2].inkBeside = 30;  // a mark that runs over
    boxes[3].isReadOtherwise = true;
    boxes[4].isOtherForm = true;
    // The printed line lies in the box; a pixel aside it is empty.
    boxes.push_back({.isChecked = true, .fill = 9, .least = 0.5});
    boxes.push_back({.isChecked = false, .fill = 6, .least = 0});
    EXPECT_EQ(DoubtsOf(boxes, 8),
              (BoxDoubts{
                  R::Contradiction, R::InkBeside, {}, R::ReadOtherwise, R::OtherForm, R::ReadOtherwise, {}}));
}

TEST(DoubtsTest, AGroupThatTakesOneMarkIsInDoubtWithNoneOrMore) {
    using profiles::Takes;
    const std::vector<std::string> names = {"a", "b", "c", "c"};
    const std::tuple<Takes, std::vector<double>, BoxDoubts> cases[] = {
        {Takes::One, {0, 2, 0, 0}, {{}, R::NoneOfGroup, {}, {}}},
        {Takes::One, {50, 0, 0, 50}, {R::ManyOfGroup, {}, {}, R::ManyOfGroup}},
        {Takes::One, {50, 0, 0, 0}, {{}, {}, {}, {}}},
        {Takes::AtLeastOne, {0, 0, 1, 0}, {{}, {}, R::NoneOfGroup, {}}},
        {Takes::AtLeastOne, {50, 50, 0, 0}, {{}, {}, {}, {}}},
        {Takes::AnyNumber, {0, 0, 0, 0}, {{}, {}, {}, {}}}};
    for (const auto& [takes, fills, expected] : cases) {
        BoxDoubts doubts(4);
        AddGroupDoubts(
            doubts, Page(fills), names,
            std::vector<profiles::BoxGroup>{{"G", {"a", "b", "c"}, takes}, {"-", {"gone"}, Takes::One}});
        EXPECT_EQ(doubts, expected) << static_cast<int>(takes) << " " << fills[0];
    }
}

class CountedDoubtsTest : public test::ReviewWorld {
  protected:
    // Three forms: "b" has an unclear box, "c" none, and "a" cannot be read.
    void SetUp() override {
        AddScan("a.tif");
        AddScan("c.tif", {.checked = {1}});
        samples::Canvas page = form_.Paint({.checked = {1}});
        page.FillRect(form_.boxes[2].L + 6, form_.boxes[2].T + 6, 8, 4);
        samples::SaveImage(samples::ToBilevel(page), imaging::ImageFormat::Tiff,
                           folders_.ProcessIn + "b.tif");
        Process();
        test::WriteText(folders_.ProcessOut + "a.tif", "damaged");
        EnterReview();
    }

    std::vector<std::optional<int>> Counts() const {
        std::vector<std::optional<int>> counts;
        for (const ReviewLine& line : review_.Lines())
            counts.push_back(line.Doubts);
        return counts;
    }

    void CountAll() {
        int steps = 0;
        while (review_.CountNextDoubts())
            ASSERT_LT(++steps, 10);
    }

    void EnterAnew() {
        Toggle();
        Toggle();
    }

    const std::vector<std::optional<int>> counted_ = {std::nullopt, 1, 0};
    const std::vector<std::optional<int>> unknown_ = {std::nullopt, std::nullopt, std::nullopt};
};

TEST_F(CountedDoubtsTest, AreKeptWhileNothingThatTheyDependOnChanges) {
    EXPECT_EQ(Counts(), unknown_);
    CountAll();
    EXPECT_EQ(Counts(), counted_);
    EXPECT_EQ(review_.Sheet().Begin(""), (std::vector<SheetBox>{{"b.xml", 3, false, R::NearThreshold, 60}}));
    EnterAnew();
    EXPECT_EQ(Counts(), counted_);
    profiles::WriteBoxGroups(files_, folders_.Profiles + "Form.Tvp",
                             std::vector<profiles::BoxGroup>{{"Q", {"Q3", "Q4"}, profiles::Takes::One}});
    EnterAnew();
    EXPECT_EQ(Counts(), unknown_);
    CountAll();
    EXPECT_EQ(Counts(), (std::vector<std::optional<int>>{std::nullopt, 1, 1}));
    settings_.FillThreshold = 30;
    EnterAnew();
    EXPECT_EQ(Counts(), unknown_);
    CountAll();
    Open(2);
    Flip(1);
    Okay();
    EXPECT_EQ(Counts()[2], std::nullopt) << "a reviewed form was looked at";
}

TEST_F(CountedDoubtsTest, ACacheThatIsGoneOrBrokenIsMadeAnew) {
    CountAll();
    Toggle();
    const std::string whole = test::ReadText(folders_.Temp + "doubts.txt");
    Toggle();
    EXPECT_EQ(Counts(), counted_);
    const std::string cut = whole.substr(0, whole.find("end "));
    for (const std::string& content : {std::string(), cut, cut.substr(0, cut.size() - 4),
                                       app::ReplaceFirst(whole, "3T", "4T"), std::string("\n\t")}) {
        Toggle();
        test::WriteText(folders_.Temp + "doubts.txt", content);
        Toggle();
        EXPECT_EQ(Counts(), unknown_);
        CountAll();
        EXPECT_EQ(Counts(), counted_);
    }
    settings_.FillThreshold = 9;
    Refuse("write", "doubts.txt");
    EnterAnew();
    CountAll();
    EXPECT_EQ(Counts(), counted_);
}

class RunDoubtsTest : public CountedDoubtsTest {
  protected:
    void SetUp() override {}

    void ReadSamples() {
        profiles::CopySampleForms(files_, test::SourceFolder() + "/samples", work_.Path());
        for (const std::string& scan : In(folders_.ProcessIn))
            if (scan.find("-13") == std::string::npos && scan.find("-14") == std::string::npos)
                files_.Delete(folders_.ProcessIn + scan);
        LoadProfiles();
        recognition::ProcessRun run({.files = files_,
                                     .log = log_,
                                     .person = person_,
                                     .clock = clock_,
                                     .page = screen_,
                                     .rows = screen_,
                                     .precise = &reader_,
                                     .jobs = [] { return 2; },
                                     .look = review_.LookAtRead()},
                                    settings_, folders_);
        review_.RunBegins();
        run.Run(profiles_);
        review_.RunEnds();
    }

    // What review finds by reading the forms again.
    std::string CountedByReview() {
        files_.Delete(cache_);
        Toggle();
        while (review_.CountNextDoubts()) {
        }
        Toggle();
        return test::ReadText(cache_);
    }

    const std::string cache_ = folders_.Temp + "doubts.txt";
};

TEST_F(RunDoubtsTest, AreThoseThatReviewFinds) {
    for (const recognition::ReadingOptions& way :
         {recognition::ReadingOptions{}, {.secondOpinion = true}, {.preciseAlignment = true}}) {
        reading_ = way;
        ReadSamples();
        Toggle();
        const auto counts = Counts();
        EXPECT_GE(counts.size(), 3U);
        EXPECT_EQ(std::ranges::count(counts, std::optional<int>()), 0);
        Toggle();
        const std::string counted = test::ReadText(cache_);
        EXPECT_EQ(CountedByReview(), counted);
    }
}

}  // namespace
}  // namespace tavrene::review
