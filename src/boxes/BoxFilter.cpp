#include "boxes/BoxFilter.h"

#include <algorithm>
#include <optional>
#include <set>
#include <tuple>

#include "boxes/PrintInBoxes.h"

namespace tavrene::boxes {
namespace {

// One pixel more than boxes of the same size differ by: both edges of a box may be thicker or thinner on one
// copy. What is known to be a mark (`Mark` set) gets no such benefit of the doubt.
constexpr int kKeepReach = 3;

// A closed outline says more about the sizes of a form than one with an open corner, which may be a worn
// print or a letter.
constexpr int kClosedVote = 8;
constexpr int kOpenVote = 1;

// A single box of another size may be a letter by chance.
constexpr int kSecondSizeVotes = 2 * kClosedVote;

SizeTable CountSizes(const std::vector<BoxRect>& boxes) {
    SizeTable table;
    for (const BoxRect& box : boxes) {
        if (box.Valid != 0)
            table.Add(SizeOf(box), box.Kind == 0 ? kClosedVote : kOpenVote);
    }
    return table;
}

std::optional<LeftOutFor> ReasonAgainst(const RuledBox& ruled, const PrintInBoxes& print) {
    const BoxOutline& outline = ruled.Outline;
    if (outline.HasBow || (outline.OpenCorners >= 2 && !outline.HasStraightSides))
        return LeftOutFor::OpenCorners;
    if (!outline.IsOnPrint)
        return LeftOutFor::BesidePrint;
    if (!outline.IsEmpty && !print.BelongsTo(ruled))
        return LeftOutFor::PrintInside;
    return std::nullopt;
}

// What is left of the rectangles when those that do not look like boxes have gone to `leftOut`.
std::vector<BoxRect> LookingLikeBoxes(const std::vector<RuledBox>& ruled, std::vector<LeftOutBox>& leftOut) {
    PrintInBoxes print;
    for (const RuledBox& candidate : ruled)
        print.Add(candidate);
    std::vector<BoxRect> boxes;
    for (const RuledBox& candidate : ruled) {
        BoxRect box = candidate.Box;
        box.Kind = static_cast<std::int16_t>(candidate.Outline.OpenCorners);
        box.Mark = candidate.Outline.IsClosed() ? std::int16_t{0} : std::int16_t{-1};
        box.Valid = -1;
        if (const std::optional<LeftOutFor> reason = ReasonAgainst(candidate, print))
            leftOut.push_back({box, *reason});
        else
            boxes.push_back(box);
    }
    return boxes;
}

class SizeFilter {
  public:
    explicit SizeFilter(const ReferenceSizes& sizes) : sizes_(sizes) {}

    bool HasSizeOfForm(const BoxRect& box) const {
        const BoxSize size = SizeOf(box);
        return IsNearReference(size, kSameSize) || (box.Mark == 0 && IsNearReference(size, kKeepReach));
    }

    // Only where the size is right within two pixels are twins looked for.
    bool IsCandidate(const BoxRect& box) const { return IsNearReference(SizeOf(box), kSameSize); }

  private:
    bool IsNearReference(BoxSize size, int reach) const {
        return Within(size, sizes_.MostCommon, reach) || Within(size, sizes_.Second, reach);
    }

    ReferenceSizes sizes_;
};

bool IsFlat(const BoxRect& box) {
    const BoxSize size = SizeOf(box);
    return size.Height < 1 || size.Width < 1;
}

}  // namespace

ReferenceSizes ChooseReferenceSizes(const std::vector<BoxRect>& boxes) {
    SizeTable table = CountSizes(boxes);
    const auto [common, commonVotes] = table.MostCommon();
    table.Remove(common, kKeepReach);
    const auto [second, secondVotes] = table.MostCommon();
    const bool isReal = secondVotes.Plain >= std::min(kSecondSizeVotes, commonVotes.Plain);
    return {common, isReal ? second : common};
}

void FilterBoxes(BoxAnalysis& analysis, const std::vector<RuledBox>& ruled) {
    analysis.LeftOut.clear();
    analysis.Boxes.clear();
    const std::vector<BoxRect> boxes = LookingLikeBoxes(ruled, analysis.LeftOut);
    const SizeFilter filter(ChooseReferenceSizes(boxes));
    std::set<std::tuple<int, int, int, int>> seen;
    // From the last to the first, so that those already seen are the later ones.
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box) {
        const bool repeated = !seen.insert({box->L, box->T, box->R, box->B}).second;
        if (IsFlat(*box) || (filter.HasSizeOfForm(*box) && !(repeated && filter.IsCandidate(*box))))
            analysis.Boxes.push_back(*box);
        else if (!repeated)
            analysis.LeftOut.push_back({*box, LeftOutFor::OddSize});
    }
    std::reverse(analysis.Boxes.begin(), analysis.Boxes.end());
}

}  // namespace tavrene::boxes
