#include "boxes/BoxAssembly.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "boxes/BoxCorners.h"
#include "boxes/BoxFilter.h"
#include "boxes/CreatedSide.h"
#include "boxes/SegmentIndex.h"

namespace tavrene::boxes {
namespace {

constexpr std::int16_t kLastNumber = std::numeric_limits<std::int16_t>::max();

enum class CornerHits : bool { Required, Ignored };

// Numbers the segments by box. Created sides wait outside the list until every segment has had its turn.
class Assembler {
  public:
    explicit Assembler(BoxAnalysis& analysis)
        : analysis_(analysis),
          segments_(analysis.Segments),
          index_(segments_, analysis.WorkGrid.Columns(), analysis.WorkGrid.Rows(), analysis.Work) {}

    // The rectangles of all boxes, in the order in which they were found.
    std::vector<RuledBox> Run();

  private:
    using Sides = std::array<int, 2>;

    bool FindSides(int from, Sides& sides);
    int Search(int from, CornerHits hits, Sides& sides);
    int ClosingSide(int from, const LineSeg& a, const LineSeg& b);
    int FourthSide(int from, const ExpectedSide& expected);
    void CloseBox(int from, const Sides& sides);
    void SettleNumbers();
    void Take(int number);

    bool IsFree(int number) const { return At(number).BoxId == -1; }
    const LineSeg& At(int number) const { return segments_[static_cast<std::size_t>(number)]; }

    BoxAnalysis& analysis_;
    std::vector<LineSeg>& segments_;
    SegmentIndex index_;
    std::vector<LineSeg> created_;
    std::vector<RuledBox> settled_;
    std::vector<int> taken_;  // By the box that is being built.
    std::int16_t boxNumber_ = 0;
};

bool Between(int value, int bound, int otherBound) {
    return std::min(bound, otherBound) <= value && value <= std::max(bound, otherBound);
}

// Whether `side`, parallel to the segment that a box is built from, already closes it across `a` and `b`.
bool Closes(const LineSeg& side, const LineSeg& a, const LineSeg& b) {
    if (!a.IsVertical())
        return Between(side.L, a.L, a.R) && Between(b.T, side.T, side.B);
    const auto touches = [&](const LineSeg& upright) {
        return Between(side.T, upright.T, upright.B) && Between(upright.L, side.L, side.R);
    };
    return touches(a) || touches(b);
}

std::vector<RuledBox> Assembler::Run() {
    const auto count = static_cast<int>(segments_.size());
    for (int from = 0; from < count && !analysis_.Work.IsSpent(); ++from) {
        if (!IsFree(from))
            continue;
        taken_.clear();
        Sides sides{};
        if (FindSides(from, sides)) {
            CloseBox(from, sides);
        } else {
            for (const int number : taken_)
                segments_[static_cast<std::size_t>(number)].BoxId = -1;
        }
    }
    SettleNumbers();
    return std::move(settled_);
}

// Box numbers have 16 bits, and a dense hatching takes more of them. When they are used up, the boxes so far
// become rectangles and the numbers are given out anew; their sides stay taken.
void Assembler::SettleNumbers() {
    constexpr std::int16_t settledNumber = -2;
    const std::size_t found = segments_.size();
    segments_.insert(segments_.end(), created_.begin(), created_.end());
    const std::vector<RuledBox> boxes = BuildRectangles(analysis_, boxNumber_);
    settled_.insert(settled_.end(), boxes.begin(), boxes.end());
    if (boxNumber_ < kLastNumber)
        return;
    segments_.resize(found);
    created_.clear();
    for (LineSeg& segment : segments_) {
        if (segment.BoxId >= 0)
            segment.BoxId = settledNumber;
    }
    boxNumber_ = 0;
}

void Assembler::Take(int number) {
    segments_[static_cast<std::size_t>(number)].BoxId = boxNumber_;
    taken_.push_back(number);
}

bool Assembler::FindSides(int from, Sides& sides) {
    if (Search(from, CornerHits::Required, sides) == 2)
        return true;
    // A side that the first search has taken stays taken: the second one needs two others.
    if (Search(from, CornerHits::Ignored, sides) != 2)
        return false;
    Take(from);
    return true;
}

int Assembler::Search(int from, CornerHits hits, Sides& sides) {
    const LineSeg& segment = At(from);
    const bool required = hits == CornerHits::Required;
    if (required && segment.CornerHits < 1)
        return 0;
    const int reachX = analysis_.Reach.X - 1;
    const int reachY = analysis_.Reach.Y - 1;
    const SearchRect searched{segment.L - reachX, segment.T - reachY, segment.L + reachX, segment.T + reachY};
    const std::vector<int>& near = index_.Find(Across(segment.Orientation), searched);
    std::size_t found = 0;
    for (auto number = near.rbegin(); number != near.rend() && found < sides.size(); ++number) {
        if (!IsFree(*number) || (required && At(*number).CornerHits < 1) ||
            !ShareCorner(segment, At(*number)))
            continue;
        Take(*number);
        sides[found++] = *number;
    }
    return static_cast<int>(found);
}

// The last free segment that closes the box, -1 for none.
int Assembler::ClosingSide(int from, const LineSeg& a, const LineSeg& b) {
    const int spanX = index_.WidestSpan();
    const int spanY = index_.HighestSpan();
    const SearchRect searched{std::min({a.L, a.R, b.L}) - spanX, std::min({a.T, a.B, b.T, b.B}) - spanY,
                              std::max({a.L, a.R, b.L}) + spanX, std::max({a.T, a.B, b.T, b.B}) + spanY};
    const std::vector<int>& near = index_.Find(At(from).Orientation, searched);
    for (auto number = near.rbegin(); number != near.rend(); ++number) {
        if (*number != from && IsFree(*number) && Closes(At(*number), a, b))
            return *number;
    }
    return -1;
}

// The first free segment that runs between the expected ends, -1 for none.
int Assembler::FourthSide(int from, const ExpectedSide& expected) {
    const auto [left, right] = std::minmax(expected.FarA.X, expected.FarB.X);
    const auto [bottom, top] = std::minmax(expected.FarA.Y, expected.FarB.Y);
    const SearchRect searched{left - kEndReach, bottom - kEndReach, right + kEndReach, top + kEndReach};
    for (const int number : index_.Find(At(from).Orientation, searched)) {
        if (number != from && IsFree(number) && RunsBetween(At(number), expected))
            return number;
    }
    return -1;
}

void Assembler::CloseBox(int from, const Sides& sides) {
    const LineSeg& a = At(sides[0]);
    const LineSeg& b = At(sides[1]);
    int fourth = ClosingSide(from, a, b);
    const ExpectedSide expected = ExpectFourthSide(At(from), a, b);
    if (fourth < 0)
        fourth = FourthSide(from, expected);
    Take(from);
    if (fourth >= 0)
        Take(fourth);
    else
        created_.push_back(CreateSide(analysis_, At(from), expected, boxNumber_));
    if (++boxNumber_ == kLastNumber)
        SettleNumbers();
}

}  // namespace

void IdentifyBoxes(BoxAnalysis& analysis) {
    FilterBoxes(analysis, Assembler(analysis).Run());
}

}  // namespace tavrene::boxes
