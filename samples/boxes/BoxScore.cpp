#include "boxes/BoxScore.h"

#include <algorithm>
#include <cmath>

#include "boxes/BoxAssembly.h"
#include "boxes/ProfileImagePipeline.h"
#include "boxes/second/SecondLook.h"

namespace tavrene::samples {
namespace {

double WorstEdgeOf(const TrueBox& truth, const boxes::BoxRect& found) {
    return std::max({std::abs(truth.L - found.L), std::abs(truth.T - found.T), std::abs(truth.R - found.R),
                     std::abs(truth.B - found.B)});
}

double Percent(std::size_t part, std::size_t whole) {
    return whole == 0 ? 100.0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

}  // namespace

void Tally::Add(const PageScore& page) {
    True += page.Right.size() + page.Missed.size();
    Right += page.Right.size();
    False += page.False.size();
    WorstEdge = std::max(WorstEdge, page.WorstEdge);
}

double Tally::Recall() const {
    return Percent(Right, True);
}

double Tally::Precision() const {
    return Percent(Right, Right + False);
}

boxes::BoxAnalysis AnalyseSteps(const BoxPage& page, int steps) {
    boxes::BoxAnalysis analysis(page.Grid.Clone(), page.Sizes, boxes::ReachFor(page.Sizes));
    for (int number = 0; number < steps; ++number)
        boxes::PipelineSteps()[static_cast<std::size_t>(number)].Run(analysis);
    return analysis;
}

boxes::BoxAnalysis AnalysePage(const BoxPage& page) {
    boxes::BoxAnalysis analysis = AnalyseSteps(page, static_cast<int>(boxes::PipelineSteps().size()));
    boxes::IdentifyBoxes(analysis);
    return analysis;
}

PageFinds FindOnPage(const BoxPage& page) {
    const boxes::BoxAnalysis analysis = AnalysePage(page);
    PageFinds finds{analysis.Boxes, analysis.Boxes, analysis.Boxes};
    for (const boxes::LeftOutBox& leftOut : analysis.LeftOut)
        finds.Rules.push_back(leftOut.Box);
    const boxes::SecondLook look =
        boxes::LookAgain(page.Grid, analysis.Boxes, page.Sizes, [](double) { return true; });
    for (const boxes::Candidate& candidate : look.Candidates)
        finds.Second.push_back(candidate.Box);
    return finds;
}

std::vector<ScoreRow> ScoreTable(const std::vector<BoxPagePlan>& plans, const std::string& part) {
    std::vector<ScoreRow> rows;
    for (const BoxPagePlan& plan : plans) {
        if (plan.Name().find(part) == std::string::npos)
            continue;
        const std::string name = plan.Class + ", " + std::to_string(plan.Style.Thickness) + " px";
        if (rows.empty() || rows.back().Name != name)
            rows.push_back({name, {}, {}, {}});
        const BoxPage page = PaintPage(plan);
        const PageFinds finds = FindOnPage(page);
        rows.back().Rules.Add(ScorePage(page.GroundTruth, finds.Rules));
        rows.back().First.Add(ScorePage(page.GroundTruth, finds.First));
        rows.back().Second.Add(ScorePage(page.GroundTruth, finds.Second));
    }
    return rows;
}

PageScore ScorePage(const std::vector<TrueBox>& truth, const std::vector<boxes::BoxRect>& found) {
    PageScore score;
    score.False = found;
    for (const TrueBox& box : truth) {
        const auto nearest = std::min_element(
            score.False.begin(), score.False.end(),
            [&](const auto& a, const auto& b) { return WorstEdgeOf(box, a) < WorstEdgeOf(box, b); });
        if (nearest == score.False.end() || WorstEdgeOf(box, *nearest) > kEdgeTolerance) {
            score.Missed.push_back(box);
            continue;
        }
        score.WorstEdge = std::max(score.WorstEdge, WorstEdgeOf(box, *nearest));
        score.Right.push_back(*nearest);
        score.False.erase(nearest);
    }
    return score;
}

}  // namespace tavrene::samples
