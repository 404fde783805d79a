#include "boxes/second/CandidateChoice.h"

#include <algorithm>
#include <tuple>

#include "boxes/PrintInBoxes.h"

namespace tavrene::boxes {
namespace {

// Fewer boxes that are there already say nothing of the sizes of a form: one may be a letter.
constexpr int kAFew = 3;

// Two breaks of the longest kind, and a little wear.
constexpr int kMostMissing = 14;

// Dirt and worn print put a pixel of ink beside a break now and then.
constexpr int kMostBent = 2;

// Outlines of boxes overlap by their thickness where they share a side.
constexpr int kSharedSide = 4;

bool FitsSettings(BoxSize size, const BoxSizes& sizes, int slack = 0) {
    return size.Width >= sizes.BoxMinWidth - slack && size.Width <= sizes.BoxMaxWidth + slack &&
           size.Height >= sizes.BoxMinHeight - slack && size.Height <= sizes.BoxMaxHeight + slack;
}

// A table has cells of all shapes; boxes to be ticked are about as wide as high.
bool IsBoxShaped(BoxSize size) {
    return size.Width * 2 >= size.Height && size.Height * 5 >= size.Width * 2;
}

class Choice {
  public:
    Choice(const std::vector<Proposal>& proposals, const std::vector<BoxRect>& there, const BoxSizes& sizes)
        : settings_(sizes) {
        for (const Proposal& proposal : proposals)
            print_.Add(proposal.Ruled);
        for (const BoxRect& box : there)
            there_.Add(SizeOf(box));
        for (const Proposal& proposal : proposals) {
            const BoxSize size = SizeOf(proposal.Ruled.Box);
            if (IsSound(proposal))
                (IsSharp(proposal) ? sharp_ : sound_).Add(size);
            else if (proposal.Walls.HasStraightMiddles && !IsBent(proposal))
                middles_.Add(size);
        }
    }

    // 0 for no candidate.
    int OddsOf(const Proposal& proposal) const;

  private:
    bool IsSound(const Proposal& proposal) const {
        const BoxOutline& outline = proposal.Ruled.Outline;
        const bool isRound = proposal.Walls.BluntCorners == 4 && proposal.Walls.HasStraightMiddles;
        return (proposal.Walls.BluntCorners == 0 || isRound) &&
               (outline.OpenCorners < 2 || outline.HasStraightSides) && outline.IsOnPrint &&
               HasCleanInside(proposal);
    }
    bool HasCleanInside(const Proposal& proposal) const {
        return proposal.Ruled.Outline.IsEmpty || print_.BelongsTo(proposal.Ruled);
    }
    // Where a line of a box is missing there is nothing; an arc has its ink elsewhere.
    static bool IsBent(const Proposal& proposal) {
        return proposal.Walls.BluntCorners > 0 || proposal.Walls.BentPixels > kMostBent;
    }
    // Two breaks leave more than four fifths of a small box, missing corners two thirds of each wall; letters
    // with an open side, such as U and H, have less.
    static bool LacksTooMuch(const Proposal& proposal) {
        const Frame& walls = proposal.Walls;
        const int around = 2 * (walls.Right - walls.Left + walls.Upper - walls.Lower - 2);
        return walls.MissingPixels * 5 >= around && walls.WorstPercent < 65;
    }
    // Zeros are nearly closed too; of boxes, those with no corner have straight sides to show.
    static bool IsRoundish(const Proposal& proposal) {
        return proposal.Ruled.Outline.OpenCorners > 2 && !proposal.Walls.HasStraightMiddles;
    }
    // A frame that looks printed as one: small bowls of letters have closed corners too, but bend.
    static bool IsSharp(const Proposal& proposal) {
        return IsClosed(proposal) && proposal.Walls.HasStraightMiddles;
    }
    static bool IsClosed(const Proposal& proposal) {
        return proposal.Ruled.Outline.IsClosed() && proposal.Walls.WorstPercent >= 85;
    }

    BoxSizes settings_;
    PrintInBoxes print_;
    SizeTable there_;
    SizeTable sharp_;
    SizeTable sound_;  // The others.
    SizeTable middles_;
};

int Choice::OddsOf(const Proposal& proposal) const {
    const BoxSize size = SizeOf(proposal.Ruled.Box);
    const bool fits = FitsSettings(size, settings_);
    const bool isAsThere = there_.CountNear(size) >= kAFew;
    const bool isWornByAPixel = isAsThere && FitsSettings(size, settings_, 1);
    if (!fits && !(IsBoxShaped(size) && (isWornByAPixel || proposal.Walls.HasStraightMiddles)))
        return 0;
    const int sharp = sharp_.CountNear(size);
    const int sound = sharp + sound_.CountNear(size);
    const bool isSizeOfForm = isAsThere || sharp >= kInNumber;
    const int shown = proposal.Walls.WorstPercent / 10;
    if (IsSound(proposal)) {
        if (isSizeOfForm)
            return 80 + shown;
        if (IsClosed(proposal) && fits)
            return 60 + shown;
        if (fits && sound >= 2 * kInNumber)
            return 50 + shown;
        return 0;
    }
    if (IsBent(proposal) || LacksTooMuch(proposal) || !HasCleanInside(proposal))
        return 0;
    if (isSizeOfForm && !IsRoundish(proposal) && proposal.Walls.MissingPixels <= kMostMissing &&
        proposal.Ruled.Outline.IsOnPrint)
        return 40 + shown;
    if (fits && proposal.Walls.HasStraightMiddles && middles_.CountNear(size) + sound >= kInNumber)
        return 30 + shown;
    return 0;
}

// The most probable first, those as probable from the top of the page down and from left to right.
bool IsBefore(const Candidate& a, const Candidate& b) {
    return std::tuple(-a.Odds, -a.Box.T, a.Box.L) < std::tuple(-b.Odds, -b.Box.T, b.Box.L);
}

// Boxes that were chosen.
class Chosen {
  public:
    void Add(const BoxRect& box) { boxes_.push_back(box); }
    bool Covers(const BoxRect& box) const {
        return std::any_of(boxes_.begin(), boxes_.end(),
                           [&](const BoxRect& other) { return Overlap(box, other); });
    }

  private:
    std::vector<BoxRect> boxes_;
};

}  // namespace

bool Overlap(const BoxRect& a, const BoxRect& b) {
    return std::min(a.R, b.R) - std::max(a.L, b.L) > kSharedSide &&
           std::min(a.B, b.B) - std::max(a.T, b.T) > kSharedSide;
}

std::vector<Candidate> ChooseCandidates(const std::vector<Proposal>& proposals,
                                        const std::vector<BoxRect>& there, const BoxSizes& sizes) {
    const Choice choice(proposals, there, sizes);
    std::vector<Candidate> likely;
    for (const Proposal& proposal : proposals) {
        if (const int odds = choice.OddsOf(proposal); odds > 0)
            likely.push_back({proposal.Ruled.Box, odds});
    }
    std::stable_sort(likely.begin(), likely.end(), IsBefore);
    Chosen chosen;
    for (const BoxRect& box : there)
        chosen.Add(box);
    std::vector<Candidate> candidates;
    for (const Candidate& candidate : likely) {
        if (chosen.Covers(candidate.Box))
            continue;
        chosen.Add(candidate.Box);
        candidates.push_back(candidate);
    }
    return candidates;
}

}  // namespace tavrene::boxes
