#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "boxes/BoxPages.h"

namespace tavrene::samples {

/// Found boxes count as right when every edge is within this many pixels of the truth.
inline constexpr double kEdgeTolerance = 2.0;

/// How the boxes found on a page agree with the true ones.
struct PageScore {
    std::vector<boxes::BoxRect> Right;
    std::vector<boxes::BoxRect> False;
    std::vector<TrueBox> Missed;
    double WorstEdge = 0;  ///< Largest distance of an edge of a right box from the truth, in pixels.
};

/// Sums over pages.
struct Tally {
    std::size_t True = 0;
    std::size_t Right = 0;
    std::size_t False = 0;
    double WorstEdge = 0;

    void Add(const PageScore& page);
    double Recall() const;     ///< Percent of the true boxes that were found.
    double Precision() const;  ///< Percent of the found boxes that are true.
};

/// Runs the eleven steps and box assembly on a page.
boxes::BoxAnalysis AnalysePage(const BoxPage& page);

/// The state after the first `steps` steps, 0 to 11, without box assembly.
boxes::BoxAnalysis AnalyseSteps(const BoxPage& page, int steps);

/// One row of the score table: the pages of one class and outline thickness.
struct ScoreRow {
    std::string Name;  ///< "clean, 2 px".
    Tally Rules;       ///< What the rules keep, before any filter.
    Tally First;       ///< What a new profile gets.
    Tally Second;      ///< With everything taken that the second look offers.
};

/// What the looks find on a page.
struct PageFinds {
    std::vector<boxes::BoxRect> Rules;
    std::vector<boxes::BoxRect> First;
    std::vector<boxes::BoxRect> Second;
};

PageFinds FindOnPage(const BoxPage& page);

/// Paints and scores pages; the rows come in the order of the plans. `part` keeps those whose name holds it.
std::vector<ScoreRow> ScoreTable(const std::vector<BoxPagePlan>& plans, const std::string& part = {});

/// Each true box takes at most one found box, the nearest.
PageScore ScorePage(const std::vector<TrueBox>& truth, const std::vector<boxes::BoxRect>& found);

}  // namespace tavrene::samples
