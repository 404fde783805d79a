#include "boxes/second/FrameSearch.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "boxes/PointIndex.h"
#include "boxes/second/WallScan.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;

// A break beside a corner, a gap or a rounding there leaves a wall this much shorter than the inside.
constexpr int kEndReach = 6;

// A wall beside such a break in the next one runs on to the outer edge of the box, so one of two walls may be
// longer than the other by a thick line and a break.
constexpr int kEndsApart = 10;

// Of every wall so much must be seen: what two breaks leave, or one of the longest in a small box.
int NeededPlaces(int length) {
    constexpr int seenPercent = 58;
    constexpr int leastPercent = 35;
    return std::max(std::min(length * seenPercent / 100, length - kLongestBreak - 1),
                    length * leastPercent / 100);
}

// A frame over two neighbours, or over a box and a letter beside it, shows its walls as well as a worn box
// does: a farther wall must be clearly better than a near one, and not have more missing.
bool IsClearlyBetter(const Frame& far, const Frame& near) {
    constexpr int clearly = 12;
    const auto sides = [](const Frame& frame) {
        return frame.Right - frame.Left + frame.Upper - frame.Lower;
    };
    return far.WorstPercent > near.WorstPercent + clearly &&
           far.MissingPixels * sides(near) <= near.MissingPixels * sides(far);
}

// A row or a column that may bound a frame, and how many places of it do.
struct Bound {
    int Line = 0;
    int Seen = 0;
};

class Search {
  public:
    Search(const WorkGrid& page, const InsideLimits& limits)
        : faces_(page),
          limits_(limits),
          rightWalls_(FindWalls(faces_, Inside::ToTheLeft, LengthsFor(limits))),
          index_(page.Columns(), page.Rows(), kCellSize) {
        for (std::size_t number = 0; number < rightWalls_.size(); ++number)
            index_.Add(static_cast<int>(number), rightWalls_[number].Column, rightWalls_[number].First);
    }

    std::vector<Frame> Run(const std::function<bool(double)>& goOn);

  private:
    static constexpr int kCellSize = 32;

    static WallLengths LengthsFor(const InsideLimits& limits) {
        return {std::max(limits.MinHeight - 2 * kEndReach, limits.MinHeight * 6 / 10),
                limits.MaxHeight + 2 * kEndReach};
    }

    std::optional<Frame> BestFrame(const Wall& left);
    std::optional<Frame> FrameBetween(const Wall& left, const Wall& right) const;
    bool HasStraightMiddles(const Frame& frame) const;
    bool IsBlunt(int column, int row, int stepX, int stepY) const;
    int CountBentPixels(const Frame& frame) const;
    int CountBluntCorners(const Frame& frame) const;
    bool HasInkAcross(const Wall& left, const Wall& right) const;

    InnerFaces faces_;
    InsideLimits limits_;
    std::vector<Wall> rightWalls_;
    PointIndex index_;
    std::vector<int> near_;
};

std::vector<Frame> Search::Run(const std::function<bool(double)>& goOn) {
    constexpr std::size_t between = 4096;
    const std::vector<Wall> leftWalls = FindWalls(faces_, Inside::ToTheRight, LengthsFor(limits_));
    std::vector<Frame> frames;
    for (std::size_t number = 0; number < leftWalls.size(); ++number) {
        if (number % between == 0 &&
            !goOn(static_cast<double>(number) / static_cast<double>(leftWalls.size())))
            break;
        if (const std::optional<Frame> frame = BestFrame(leftWalls[number]))
            frames.push_back(*frame);
    }
    return frames;
}

int Ends(const Wall& a, const Wall& b) {
    return std::max(std::abs(a.First - b.First), std::abs(a.Last - b.Last));
}

std::optional<Frame> Search::BestFrame(const Wall& left) {
    const SearchRect searched{left.Column + limits_.MinWidth + 1, left.First - kEndsApart,
                              left.Column + limits_.MaxWidth + 1, left.First + kEndsApart};
    near_.clear();
    index_.VisitNear(searched, [&](int number) {
        const Wall& right = rightWalls_[static_cast<std::size_t>(number)];
        if (searched.Contains(right.Column, right.First) && Ends(left, right) <= kEndsApart)
            near_.push_back(number);
    });
    // They are numbered by column.
    std::sort(near_.begin(), near_.end());
    std::optional<Frame> best;
    for (const int number : near_) {
        const std::optional<Frame> frame = FrameBetween(left, rightWalls_[static_cast<std::size_t>(number)]);
        if (frame && (!best || IsClearlyBetter(*frame, *best)))
            best = frame;
    }
    return best;
}

// A quick look at three columns between the walls: most pairs of strokes have nothing there. A break takes
// two of them at most.
bool Search::HasInkAcross(const Wall& left, const Wall& right) const {
    const int width = right.Column - left.Column;
    int seen = 0;
    for (const int quarter : {1, 2, 3}) {
        const int column = left.Column + width * quarter / 4;
        const int lower = std::min(left.First, right.First) - 1;
        const int upper = std::max(left.Last, right.Last) + 1;
        bool below = false;
        bool above = false;
        for (int away = -kEndReach - 1; away <= kEndReach + 1; ++away) {
            below = below || faces_.Columns.IsInk(lower + away, column);
            above = above || faces_.Columns.IsInk(upper + away, column);
        }
        seen += below && above ? 1 : 0;
    }
    return seen > 0;
}

// The places between two upright walls, and how many of them a wall across must show.
struct Across {
    int First;
    int Last;
    int Needed;
};

// The nearest line from `from` on, in steps away from the inside, that shows enough, or one of the next two
// if that shows more. What lies farther out may be a ruling.
Bound NearestBound(const LineBits& faces, const Across& across, int from, int direction, int steps) {
    constexpr int further = 2;
    Bound best{from, 0};
    for (int step = 0; step <= steps; ++step) {
        const int line = from + step * direction;
        const int seen = faces.CountNear(line, across.First, across.Last);
        if (best.Seen < across.Needed && seen >= across.Needed)
            steps = std::min(steps, step + further);
        if (seen > best.Seen)
            best = {line, seen};
    }
    return best;
}

// Places along a wall where it is not seen, but ink is near on its inner side. `isInk` takes a line and a
// place.
template <typename IsInk>
int BentPlaces(const LineBits& faces, int line, int inwards, int first, int last, IsInk isInk) {
    int bent = 0;
    for (int place = first; place <= last; ++place) {
        if (faces.CountNear(line, place, place) == 0 &&
            (isInk(line + 2 * inwards, place) || isInk(line + 3 * inwards, place) ||
             isInk(line + 4 * inwards, place)))
            ++bent;
    }
    return bent;
}

// Whether the middle three fifths of a wall, as far as it is seen, lie on one line, or on as many as a wall
// of that length may slant over. The arc of a letter of the same length strays twice as far.
template <typename IsInk>
bool IsMiddleStraight(const LineBits& faces, int line, int inwards, int first, int last, IsInk isInk) {
    constexpr int neededPercent = 95;
    constexpr int lengthPerLine = 20;
    const int length = last - first + 1;
    const int skipped = length / 5;
    first += skipped;
    last -= skipped;
    const int lines = 1 + std::min(length / lengthPerLine, 2);
    int most = 0;
    for (int lowest = line - lines; lowest <= line + 1; ++lowest) {
        int seen = 0;
        for (int place = std::max(lowest, 0); place < std::min(lowest + lines, faces.Lines()); ++place)
            seen += faces.Bits.CountInkInRow(place, first, last);
        most = std::max(most, seen);
    }
    const int all = last - first + 1;
    if (most * 100 >= neededPercent * all)
        return true;
    const int shown =
        faces.CountNear(line, first, last) + BentPlaces(faces, line, inwards, first, last, isInk);
    return most * 3 >= all && most * 100 >= neededPercent * shown;
}

bool Search::HasStraightMiddles(const Frame& frame) const {
    const auto inColumn = [&](int column, int row) { return faces_.Columns.IsInk(row, column); };
    const auto inRow = [&](int row, int column) { return faces_.Columns.IsInk(row, column); };
    const int left = frame.Left + 1;
    const int right = frame.Right - 1;
    const int lower = frame.Lower + 1;
    const int upper = frame.Upper - 1;
    return IsMiddleStraight(faces_.Left, frame.Left, 1, lower, upper, inColumn) &&
           IsMiddleStraight(faces_.Right, frame.Right, -1, lower, upper, inColumn) &&
           IsMiddleStraight(faces_.Lower, frame.Lower, 1, left, right, inRow) &&
           IsMiddleStraight(faces_.Upper, frame.Upper, -1, left, right, inRow);
}

// The innermost pixel of a corner and its two neighbours along the walls. Where a box slants one of its walls
// may cover two of them, never all three.
bool Search::IsBlunt(int column, int row, int stepX, int stepY) const {
    const WorkGrid& columns = faces_.Columns;
    return columns.IsInk(row, column) && columns.IsInk(row + stepY, column) &&
           columns.IsInk(row, column + stepX);
}

int Search::CountBluntCorners(const Frame& frame) const {
    const int left = frame.Left + 1;
    const int right = frame.Right - 1;
    const int lower = frame.Lower + 1;
    const int upper = frame.Upper - 1;
    return int{IsBlunt(left, lower, 1, 1)} + int{IsBlunt(right, lower, -1, 1)} +
           int{IsBlunt(left, upper, 1, -1)} + int{IsBlunt(right, upper, -1, -1)};
}

int Search::CountBentPixels(const Frame& frame) const {
    if (frame.MissingPixels == 0)
        return 0;
    const auto inColumn = [&](int column, int row) { return faces_.Columns.IsInk(row, column); };
    const auto inRow = [&](int row, int column) { return faces_.Columns.IsInk(row, column); };
    const int first = frame.Left + 1;
    const int last = frame.Right - 1;
    return BentPlaces(faces_.Left, frame.Left, 1, frame.Lower + 1, frame.Upper - 1, inColumn) +
           BentPlaces(faces_.Right, frame.Right, -1, frame.Lower + 1, frame.Upper - 1, inColumn) +
           BentPlaces(faces_.Lower, frame.Lower, 1, first, last, inRow) +
           BentPlaces(faces_.Upper, frame.Upper, -1, first, last, inRow);
}

std::optional<Frame> Search::FrameBetween(const Wall& left, const Wall& right) const {
    const int width = right.Column - left.Column - 1;
    const Across across{left.Column + 1, right.Column - 1, NeededPlaces(width)};
    if (!HasInkAcross(left, right))
        return std::nullopt;
    const auto [nearFirst, farFirst] = std::minmax(left.First, right.First);
    const Bound lower =
        NearestBound(faces_.Lower, across, farFirst - 1, -1, farFirst - nearFirst + kEndReach);
    if (lower.Seen < across.Needed)
        return std::nullopt;
    const auto [farLast, nearLast] = std::minmax(left.Last, right.Last);
    const Bound upper = NearestBound(faces_.Upper, across, farLast + 1, 1, nearLast - farLast + kEndReach);
    if (upper.Seen < across.Needed)
        return std::nullopt;
    const int height = upper.Line - lower.Line - 1;
    if (height < limits_.MinHeight || height > limits_.MaxHeight)
        return std::nullopt;
    const int leftSeen = faces_.Left.CountNear(left.Column, lower.Line + 1, upper.Line - 1);
    const int rightSeen = faces_.Right.CountNear(right.Column, lower.Line + 1, upper.Line - 1);
    Frame frame{left.Column, right.Column, lower.Line, upper.Line, 0, 0, 100, 0, false};
    frame.MissingPixels = 2 * width + 2 * height - lower.Seen - upper.Seen - leftSeen - rightSeen;
    frame.WorstPercent = std::min(std::min(lower.Seen, upper.Seen) * 100 / width,
                                  std::min(leftSeen, rightSeen) * 100 / height);
    if (std::min(leftSeen, rightSeen) < NeededPlaces(height))
        return std::nullopt;
    frame.BentPixels = CountBentPixels(frame);
    frame.BluntCorners = CountBluntCorners(frame);
    frame.HasStraightMiddles = HasStraightMiddles(frame);
    return frame;
}

}  // namespace

std::vector<Frame> FindFrames(const WorkGrid& page, const InsideLimits& limits,
                              const std::function<bool(double)>& goOn) {
    return Search(page, limits).Run(goOn);
}

}  // namespace tavrene::boxes
