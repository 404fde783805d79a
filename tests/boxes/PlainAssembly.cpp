#include <algorithm>
#include <cstdlib>
#include <vector>

#include "boxes/BoxCorners.h"
#include "boxes/BoxFilter.h"
#include "boxes/CreatedSide.h"
#include "boxes/PlainBoxFinding.h"

namespace tavrene::test::plain {
namespace {

using boxes::BoxAnalysis;
using boxes::LineSeg;

bool Within(int value, int a, int b) {
    return value >= std::min(a, b) && value <= std::max(a, b);
}

// Walks all segments from the last to the first and gives the sides found, in that order.
std::vector<LineSeg*> Search(BoxAnalysis& analysis, const LineSeg& i, std::int16_t number, bool needsHits) {
    std::vector<LineSeg*> sides;
    for (auto j = analysis.Segments.rbegin(); j != analysis.Segments.rend() && sides.size() < 2; ++j) {
        if (j->Orientation == i.Orientation || j->BoxId != -1 || std::abs(i.L - j->L) >= analysis.Reach.X ||
            std::abs(i.T - j->T) >= analysis.Reach.Y)
            continue;
        if ((needsHits && (i.CornerHits < 1 || j->CornerHits < 1)) || !boxes::ShareCorner(i, *j))
            continue;
        j->BoxId = number;
        sides.push_back(&*j);
    }
    return sides;
}

LineSeg* ClosingSide(BoxAnalysis& analysis, const LineSeg& i, const LineSeg& a, const LineSeg& b) {
    for (auto j = analysis.Segments.rbegin(); j != analysis.Segments.rend(); ++j) {
        if (j->Orientation != i.Orientation || j->BoxId != -1 || &*j == &i)
            continue;
        if (!a.IsVertical() && Within(j->L, a.L, a.R) && Within(b.T, j->T, j->B))
            return &*j;
        if (a.IsVertical() && Within(j->T, a.T, a.B) && Within(a.L, j->L, j->R))
            return &*j;
        if (b.IsVertical() && Within(j->T, b.T, b.B) && Within(b.L, j->L, j->R))
            return &*j;
    }
    return nullptr;
}

LineSeg* FourthSide(BoxAnalysis& analysis, const LineSeg& i, const boxes::ExpectedSide& expected) {
    for (LineSeg& j : analysis.Segments) {
        if (j.Orientation == i.Orientation && j.BoxId == -1 && &j != &i && boxes::RunsBetween(j, expected))
            return &j;
    }
    return nullptr;
}

}  // namespace

void IdentifyBoxes(BoxAnalysis& analysis) {
    std::int16_t number = 0;
    std::vector<LineSeg> created;
    for (LineSeg& i : analysis.Segments) {
        if (i.BoxId != -1)
            continue;
        std::vector<LineSeg*> sides = Search(analysis, i, number, true);
        if (sides.size() < 2)
            sides = Search(analysis, i, number, false);
        if (sides.size() < 2) {
            for (LineSeg& j : analysis.Segments)
                j.BoxId = j.BoxId == number ? std::int16_t{-1} : j.BoxId;
            continue;
        }
        i.BoxId = number;
        const boxes::ExpectedSide expected = boxes::ExpectFourthSide(i, *sides[0], *sides[1]);
        LineSeg* fourth = ClosingSide(analysis, i, *sides[0], *sides[1]);
        if (fourth == nullptr)
            fourth = FourthSide(analysis, i, expected);
        if (fourth != nullptr)
            fourth->BoxId = number;
        else
            created.push_back(boxes::CreateSide(analysis, i, expected, number));
        ++number;
    }
    analysis.Segments.insert(analysis.Segments.end(), created.begin(), created.end());
    boxes::FilterBoxes(analysis, boxes::BuildRectangles(analysis, number));
}

}  // namespace tavrene::test::plain
