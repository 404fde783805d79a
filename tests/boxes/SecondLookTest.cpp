#include <gtest/gtest.h>

#include <algorithm>

#include "boxes/BoxScore.h"
#include "boxes/second/CandidateChoice.h"
#include "boxes/second/SecondLook.h"

namespace tavrene::test {
namespace {

using boxes::BoxAnalysis;
using boxes::BoxRect;
using boxes::Candidate;
using boxes::SecondLook;
using samples::BoxPage;
using samples::BoxPagePlan;

bool Always(double) {
    return true;
}

// The first page whose name holds the text.
BoxPage PageNamed(const std::string& part) {
    for (const BoxPagePlan& plan : samples::PlanPages()) {
        if (plan.Name().find(part) != std::string::npos)
            return samples::PaintPage(plan);
    }
    ADD_FAILURE() << "no page " << part;
    return {};
}

SecondLook LookAgainAt(const BoxPage& page, const std::vector<BoxRect>& there = {}) {
    return boxes::LookAgain(page.Grid, there, page.Sizes, Always);
}

std::vector<BoxRect> BoxesOf(const SecondLook& look) {
    std::vector<BoxRect> boxes;
    for (const Candidate& candidate : look.Candidates)
        boxes.push_back(candidate.Box);
    return boxes;
}

TEST(SecondLook, UnitesWithWhatIsThereAndLosesNothingThatTheRulesKept) {
    for (const char* const name : {"clean, two sizes, 4 px, 150", "digits inside, text, 3 px, 100",
                                   "shared sides, shared sides, 2 px, 150", "tilt 1, rows, 1 px, 200"}) {
        SCOPED_TRACE(name);
        const BoxPage page = PageNamed(name);
        const BoxAnalysis first = samples::AnalysePage(page);
        const SecondLook look = LookAgainAt(page, first.Boxes);
        std::vector<BoxRect> all = first.Boxes;
        for (const BoxRect& box : BoxesOf(look)) {
            EXPECT_TRUE(std::none_of(all.begin(), all.end(),
                                     [&](const BoxRect& other) { return boxes::Overlap(box, other); }));
            all.push_back(box);
        }
        EXPECT_GE(samples::ScorePage(page.GroundTruth, all).Right.size() * 100, page.GroundTruth.size() * 98);
        EXPECT_TRUE(std::is_sorted(look.Candidates.begin(), look.Candidates.end(),
                                   [](const Candidate& a, const Candidate& b) { return a.Odds > b.Odds; }));
        for (const boxes::LeftOutBox& leftOut : first.LeftOut) {
            EXPECT_TRUE(std::find(look.Unlikely.begin(), look.Unlikely.end(), leftOut) !=
                            look.Unlikely.end() ||
                        std::any_of(all.begin(), all.end(),
                                    [&](const BoxRect& box) { return boxes::Overlap(box, leftOut.Box); }));
        }
    }
}

TEST(SecondLook, OffersNothingOnPagesWithoutBoxes) {
    std::size_t traces = 0;
    for (const BoxPagePlan& plan : samples::PlanPages()) {
        if (plan.Class.find("alone") == std::string::npos || plan.Dpi > 150)
            continue;
        SCOPED_TRACE(plan.Name());
        const BoxPage page = samples::PaintPage(plan);
        const SecondLook look = LookAgainAt(page, samples::AnalysePage(page).Boxes);
        EXPECT_TRUE(look.Candidates.empty());
        EXPECT_FALSE(look.Other);
        traces += look.Unlikely.size();
    }
    EXPECT_GT(traces, 100U) << "what the rules took for boxes is told of all the same";
}

TEST(SecondLook, TellsOfBoxesBeyondTheSettings) {
    const BoxPage page = PageNamed("300 dpi form, grid, 3 px");
    const SecondLook look = LookAgainAt(page);
    ASSERT_TRUE(look.Other);
    EXPECT_TRUE(look.Other->IsLarger);
    EXPECT_EQ(static_cast<std::size_t>(look.Other->Count), page.GroundTruth.size());
    const samples::TrueBox& box = page.GroundTruth.front();
    EXPECT_NEAR(look.Other->Size.Width, box.R - box.L, 2);
    EXPECT_NEAR(look.Other->Size.Height, box.B - box.T, 2);
    const SecondLook later = LookAgainAt(page, BoxesOf(look));
    EXPECT_TRUE(later.Candidates.empty()) << "all were taken";
    EXPECT_FALSE(later.Other);
}

TEST(SecondLook, CanBeStoppedAtAnyTime) {
    const BoxPage page = PageNamed("tilt 1, text, 4 px, 300");
    double before = 0;
    const SecondLook whole = boxes::LookAgain(page.Grid, {}, page.Sizes, [&](double share) {
        EXPECT_GE(share, before);
        EXPECT_LE(share, 1);
        before = share;
        return true;
    });
    EXPECT_GT(before, 0.6);
    EXPECT_FALSE(whole.WasStopped);
    for (const double end : {0.0, 0.2, 0.5}) {
        const SecondLook part =
            boxes::LookAgain(page.Grid, {}, page.Sizes, [end](double share) { return share < end; });
        EXPECT_TRUE(part.WasStopped);
        EXPECT_LE(part.Candidates.size(), whole.Candidates.size());
    }
}

// Small squares side by side, below the smallest box, fill the lower part of the page.
BoxPage HatchedPage() {
    constexpr int pitch = 16;
    BoxPage page{imaging::WorkGrid(3500, 3520, 3500), {}, {20, 40, 20, 40}};
    for (int row = 5; row + pitch < 2900; row += pitch) {
        for (int column = 5; column + pitch < 3490; column += pitch) {
            for (int along = 0; along < pitch - 2; ++along) {
                page.Grid.SetInk(column + along, row);
                page.Grid.SetInk(column + along, row + pitch - 3);
                page.Grid.SetInk(column, row + along);
                page.Grid.SetInk(column + pitch - 3, row + along);
            }
        }
    }
    return page;
}

TEST(FirstLook, DenseHatchingDoesNotUseUpTheBoxNumbers) {
    BoxPage page = HatchedPage();
    // Fourteen pixels pass as sides of boxes of at least seventeen.
    page.Sizes = {17, 40, 17, 40};
    for (int column = 100; column < 3400; column += 100) {
        for (int along = 0; along < 30; ++along) {
            page.Grid.SetInk(column + along, 3000);
            page.Grid.SetInk(column + along, 3029);
            page.Grid.SetInk(column, 3000 + along);
            page.Grid.SetInk(column + 29, 3000 + along);
        }
        page.GroundTruth.push_back({static_cast<double>(column), 3000, column + 29.0, 3029});
    }
    const BoxAnalysis analysis = samples::AnalysePage(page);
    EXPECT_FALSE(analysis.Work.IsSpent()) << analysis.Work.Spent();
    const samples::PageScore score = samples::ScorePage(page.GroundTruth, analysis.Boxes);
    EXPECT_EQ(score.Right.size(), page.GroundTruth.size());
    EXPECT_TRUE(score.False.empty());
}

TEST(FirstLook, SizesFarFromTheBoxesEndAtALimitOfWork) {
    BoxPage page = PageNamed("clean, text, 2 px, 200");
    EXPECT_FALSE(samples::AnalysePage(page).Work.IsSpent());
    page.Sizes = {1, 10000, 1, 10000};
    EXPECT_TRUE(samples::AnalysePage(page).Work.IsSpent());
    const SecondLook look = LookAgainAt(page);
    EXPECT_FALSE(look.WasStopped);
}

}  // namespace
}  // namespace tavrene::test
