#include "boxes/SegmentCleanup.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

#include "boxes/SegmentIndex.h"

namespace tavrene::boxes {
namespace {

// A segment along its own axis: the line that it lies on, and where it starts and ends on that line.
struct Axis {
    int Line;
    int Start;
    int End;
};

Axis AxisOf(const LineSeg& segment) {
    if (segment.IsVertical())
        return {segment.L, segment.T, segment.B};
    return {segment.T, segment.L, segment.R};
}

bool Cross(const LineSeg& a, const LineSeg& b) {
    const Axis first = AxisOf(a);
    const Axis second = AxisOf(b);
    return first.Start <= second.Line && second.Line <= first.End && second.Start <= first.Line &&
           first.Line <= second.End;
}

// Whether one of two values lies within two pixels of `value`: as far as an overshoot may reach that is cut
// back afterwards.
bool EitherNear(int value, int first, int second) {
    return std::min(std::abs(value - first), std::abs(value - second)) <= 2;
}

// Columns are held against rows here.
bool PassesEndTest(const LineSeg& segment, const LineSeg& other) {
    return EitherNear(segment.L, other.B, other.T) && EitherNear(segment.T, other.R, other.L);
}

// Around the midpoint; for a vertical segment the two reaches change places.
SearchRect CrossingRect(const LineSeg& segment, const PairReach& reach) {
    const int centreX = (segment.L + segment.R) >> 1;
    const int centreY = (segment.T + segment.B) >> 1;
    const int halfX = reach.X >> 1;
    const int halfY = reach.Y >> 1;
    const int acrossX = segment.IsVertical() ? halfY : halfX;
    const int acrossY = segment.IsVertical() ? halfX : halfY;
    return {centreX - acrossX, centreY - acrossY, centreX + acrossX, centreY + acrossY};
}

void MoveEndsTo(int crossing, std::int16_t& start, std::int16_t& end) {
    const auto isOvershoot = [](int length) { return length == 1 || length == 2; };
    if (isOvershoot(crossing - start))
        start = static_cast<std::int16_t>(crossing);
    if (isOvershoot(end - crossing))
        end = static_cast<std::int16_t>(crossing);
}

// The groups, findable by their extent's lower left corner.
class GroupFinder {
  public:
    explicit GroupFinder(BoxAnalysis& analysis)
        : groups_(analysis.Groups),
          reach_(analysis.Reach),
          work_(analysis.Work),
          horizontal_(analysis.WorkGrid.Columns(), analysis.WorkGrid.Rows(), kCellSize),
          vertical_(analysis.WorkGrid.Columns(), analysis.WorkGrid.Rows(), kCellSize) {}

    // Index of the first group that `segment` belongs to, -1 for none.
    int FirstMatch(const LineSeg& segment) const;

    void Create(const LineSeg& segment);
    void Join(int group, const LineSeg& segment);

  private:
    static constexpr int kCellSize = 32;

    bool Matches(const LineGroup& group, const LineSeg& segment) const;
    PointIndex& IndexOf(const LineSeg& segment) { return segment.IsVertical() ? vertical_ : horizontal_; }

    std::vector<LineGroup>& groups_;
    PairReach reach_;
    WorkMeter& work_;
    PointIndex horizontal_;
    PointIndex vertical_;
};

void SetExtent(LineGroup& group, const LineSeg& segment) {
    group.MinX = std::min(segment.L, segment.R);
    group.MaxX = std::max(segment.L, segment.R);
    group.MinY = std::min(segment.T, segment.B);
    group.MaxY = std::max(segment.T, segment.B);
}

bool GroupFinder::Matches(const LineGroup& group, const LineSeg& segment) const {
    if (std::abs(segment.L - group.MinX) >= reach_.X || std::abs(segment.T - group.MinY) >= reach_.Y)
        return false;
    const auto [left, right] = std::minmax(segment.L, segment.R);
    const auto [bottom, top] = std::minmax(segment.T, segment.B);
    const int leftOff = std::abs(left - group.MinX);
    const int rightOff = std::abs(right - group.MaxX);
    const int bottomOff = std::abs(bottom - group.MinY);
    const int topOff = std::abs(top - group.MaxY);
    if (segment.IsVertical())
        return !(leftOff >= 2 && rightOff > 1) && !(bottomOff > 3 && topOff > 3);
    return !(bottomOff > 1 && topOff > 1) && !(leftOff > 3 && rightOff > 3);
}

int GroupFinder::FirstMatch(const LineSeg& segment) const {
    // The line of a segment is one coordinate, so of the tests across it only a distance of one pixel passes.
    const int lowX = std::min(segment.L, segment.R);
    const int lowY = std::min(segment.T, segment.B);
    const SearchRect searched =
        segment.IsVertical()
            ? SearchRect{lowX - 1, segment.T - reach_.Y + 1, lowX + 1, segment.T + reach_.Y - 1}
            : SearchRect{segment.L - reach_.X + 1, lowY - 1, segment.L + reach_.X - 1, lowY + 1};
    int first = std::numeric_limits<int>::max();
    const PointIndex& index = segment.IsVertical() ? vertical_ : horizontal_;
    work_.Spend(index.VisitNear(searched, [&](int number) {
        if (number < first && Matches(groups_[static_cast<std::size_t>(number)], segment))
            first = number;
    }));
    return first == std::numeric_limits<int>::max() ? -1 : first;
}

void GroupFinder::Create(const LineSeg& segment) {
    LineGroup group;
    group.Members.push_back(segment);
    group.Orientation = segment.Orientation;
    SetExtent(group, segment);
    IndexOf(segment).Add(static_cast<int>(groups_.size()), group.MinX, group.MinY);
    groups_.push_back(std::move(group));
}

void GroupFinder::Join(int number, const LineSeg& segment) {
    LineGroup& group = groups_[static_cast<std::size_t>(number)];
    const int fromX = group.MinX;
    const int fromY = group.MinY;
    group.Members.push_back(segment);
    SetExtent(group, segment);
    IndexOf(segment).Move(number, fromX, fromY, group.MinX, group.MinY);
}

int BestMember(const LineGroup& group) {
    int best = -1;
    int longest = 0;
    for (std::size_t index = 0; index < group.Members.size(); ++index) {
        const LineSeg& member = group.Members[index];
        if (member.CrossingCount() == 2)
            return static_cast<int>(index);
        if (member.Length > longest) {
            best = static_cast<int>(index);
            longest = member.Length;
        }
    }
    return best;
}

}  // namespace

void FindIntersections(BoxAnalysis& analysis) {
    std::vector<LineSeg>& segments = analysis.Segments;
    SegmentIndex index(segments, analysis.WorkGrid.Columns(), analysis.WorkGrid.Rows(), analysis.Work);
    for (LineSeg& segment : segments) {
        segment.CornerHits = 0;
        segment.Crossings.clear();
        const std::vector<int>& near =
            index.Find(Across(segment.Orientation), CrossingRect(segment, analysis.Reach));
        if (analysis.Work.IsSpent())
            return;
        for (auto number = near.rbegin(); number != near.rend(); ++number) {
            const LineSeg& other = segments[static_cast<std::size_t>(*number)];
            if (Cross(segment, other))
                segment.Crossings.push_back(static_cast<std::int16_t>(AxisOf(other).Line));
            if (PassesEndTest(segment, other))
                ++segment.CornerHits;
        }
    }
}

void TruncateLineOvershoots(BoxAnalysis& analysis) {
    for (LineSeg& segment : analysis.Segments) {
        const std::vector<std::int16_t>& crossings = segment.Crossings;
        if (segment.IsVertical()) {
            for (auto row = crossings.rbegin(); row != crossings.rend(); ++row)
                MoveEndsTo(*row, segment.T, segment.B);
        } else {
            for (const std::int16_t column : crossings)
                MoveEndsTo(column, segment.L, segment.R);
        }
    }
}

void GroupParallelLines(BoxAnalysis& analysis) {
    analysis.Groups.clear();
    GroupFinder finder(analysis);
    for (std::size_t index = 0; index < analysis.Segments.size(); ++index) {
        LineSeg member = analysis.Segments[index];
        // The first segment keeps the number that it came with.
        if (index > 0)
            member.SourceIndex = static_cast<std::int16_t>(index);
        const int group = finder.FirstMatch(member);
        if (analysis.Work.IsSpent())
            return;
        if (group < 0)
            finder.Create(member);
        else
            finder.Join(group, member);
    }
}

void KeepBestParallel(BoxAnalysis& analysis) {
    analysis.Segments.clear();
    for (LineGroup& group : analysis.Groups) {
        group.Best = BestMember(group);
        if (group.Best < 0)
            continue;
        LineSeg& kept = group.Members[static_cast<std::size_t>(group.Best)];
        kept.BoxId = -1;
        analysis.Segments.push_back(std::move(kept));
    }
    analysis.Groups.clear();
}

}  // namespace tavrene::boxes
