#include <algorithm>
#include <cstdlib>

#include "boxes/PlainBoxFinding.h"

namespace tavrene::test::plain {
namespace {

using boxes::BoxAnalysis;
using boxes::LineGroup;
using boxes::LineSeg;
using boxes::Orientation;
using imaging::WorkGrid;

// Cells by distance along a row or a column.
bool InkAlong(const WorkGrid& grid, bool column, int line, int along) {
    return column ? grid.IsInk(line, along) : grid.IsInk(along, line);
}

int LongestAfterClosing(WorkGrid& grid, bool column, int line, int length) {
    int longest = 0;
    int run = 0;
    for (int along = 0; along <= length - 3; ++along) {
        if (InkAlong(grid, column, line, along)) {
            if (InkAlong(grid, column, line, along + 2))
                column ? grid.SetInk(line, along + 1) : grid.SetInk(along + 1, line);
            ++run;
        } else {
            longest = std::max(longest, run);
            run = 0;
        }
    }
    return longest;
}

void AppendRuns(BoxAnalysis& analysis, bool column, int line, int shortest, int longest) {
    const WorkGrid& grid = analysis.WorkGrid;
    const int limit = column ? grid.Rows() : grid.Width();
    int along = 0;
    while (true) {
        while (along < limit && !InkAlong(grid, column, line, along))
            ++along;
        if (along == limit)
            return;
        const int start = along;
        while (along < limit && InkAlong(grid, column, line, along))
            ++along;
        if (along - start < shortest || along - start > longest)
            continue;
        LineSeg segment;
        segment.Orientation = column ? Orientation::Vertical : Orientation::Horizontal;
        segment.L = static_cast<std::int16_t>(column ? line : start);
        segment.R = static_cast<std::int16_t>(column ? line : along);
        segment.T = static_cast<std::int16_t>(column ? start : line);
        segment.B = static_cast<std::int16_t>(column ? along : line);
        segment.Length = static_cast<std::int16_t>(along - start);
        analysis.Segments.push_back(segment);
    }
}

void ScanRuns(BoxAnalysis& analysis, int minWidth, int maxWidth, int minHeight, int maxHeight) {
    analysis.Segments.clear();
    for (int row = 0; row < analysis.WorkGrid.Rows(); ++row) {
        if (!analysis.RowSkip[static_cast<std::size_t>(row)])
            AppendRuns(analysis, false, row, minWidth, maxWidth);
    }
    for (int column = 0; column < analysis.WorkGrid.Width(); ++column) {
        if (!analysis.ColSkip[static_cast<std::size_t>(column)])
            AppendRuns(analysis, true, column, minHeight, maxHeight);
    }
}

void Paint(WorkGrid& grid, const LineSeg& segment, bool ink) {
    if (segment.IsVertical()) {
        for (int row = segment.T; row <= std::min<int>(grid.Rows() - 1, segment.B); ++row)
            grid.SetInk(segment.L, row, ink);
    } else {
        for (int column = segment.L; column <= std::min<int>(grid.Width() - 1, segment.R); ++column)
            grid.SetInk(column, segment.T, ink);
    }
}

bool BothFar(int a, int b, int c, int d) {
    return std::min(std::abs(a - b), std::abs(c - d)) > 2;
}

void Meet(LineSeg& i, const LineSeg& j, int halfX, int halfY) {
    const bool vertical = i.IsVertical();
    if (std::abs(j.T - (i.T + i.B) / 2) > (vertical ? halfX : halfY) ||
        std::abs((i.L + i.R) / 2 - j.L) > (vertical ? halfY : halfX))
        return;
    if (vertical && i.T <= j.T && j.T <= i.B && j.L <= i.L && i.L <= j.R)
        i.Crossings.push_back(j.T);
    if (!vertical && i.L <= j.L && j.L <= i.R && j.T <= i.T && i.T <= j.B)
        i.Crossings.push_back(j.L);
    const bool columns = BothFar(i.L, j.B, i.L, j.T);
    const bool rows = BothFar(i.T, j.R, i.T, j.L);
    if (!columns && !rows)
        ++i.CornerHits;
}

void SetExtent(LineGroup& group, const LineSeg& s) {
    group.MinX = std::min(s.L, s.R);
    group.MaxX = std::max(s.L, s.R);
    group.MinY = std::min(s.T, s.B);
    group.MaxY = std::max(s.T, s.B);
}

bool Joins(const LineGroup& g, const LineSeg& s, const boxes::PairReach& reach) {
    if (g.Orientation != s.Orientation || std::abs(s.L - g.MinX) >= reach.X ||
        std::abs(s.T - g.MinY) >= reach.Y)
        return false;
    const int left = std::abs(std::min(s.L, s.R) - g.MinX);
    const int right = std::abs(std::max(s.L, s.R) - g.MaxX);
    const int low = std::abs(std::min(s.T, s.B) - g.MinY);
    const int high = std::abs(std::max(s.T, s.B) - g.MaxY);
    if (s.IsVertical())
        return !(left >= 2 && right > 1) && !(low > 3 && high > 3);
    return !(low > 1 && high > 1) && !(left > 3 && right > 3);
}

}  // namespace

void CloseGapsAndMarkRows(BoxAnalysis& analysis) {
    WorkGrid& grid = analysis.WorkGrid;
    analysis.RowSkip.assign(static_cast<std::size_t>(grid.Rows()), false);
    analysis.ColSkip.assign(static_cast<std::size_t>(grid.Columns()), false);
    for (int row = 0; row < grid.Rows(); ++row) {
        if (LongestAfterClosing(grid, false, row, grid.Width()) < analysis.Sizes.BoxMinWidth - 6)
            analysis.RowSkip[static_cast<std::size_t>(row)] = true;
    }
    for (int column = 0; column < grid.Width(); ++column) {
        if (LongestAfterClosing(grid, true, column, grid.Rows()) < analysis.Sizes.BoxMinHeight - 6)
            analysis.ColSkip[static_cast<std::size_t>(column)] = true;
    }
}

void MaskLongLines(BoxAnalysis& analysis) {
    ScanRuns(analysis, analysis.Sizes.BoxMaxWidth + 4, 40000, analysis.Sizes.BoxMaxHeight + 4, 40000);
    analysis.LongLines = analysis.Segments;
    for (const LineSeg& segment : analysis.Segments)
        Paint(analysis.SaveGrid, segment, false);
    analysis.WorkGrid = analysis.SaveGrid.Clone();
}

void FindLines(BoxAnalysis& analysis) {
    ScanRuns(analysis, analysis.Sizes.BoxMinWidth - 3, analysis.Sizes.BoxMaxWidth,
             analysis.Sizes.BoxMinHeight - 3, analysis.Sizes.BoxMaxHeight);
}

void FindIntersections(BoxAnalysis& analysis) {
    std::vector<LineSeg>& list = analysis.Segments;
    for (auto i = list.rbegin(); i != list.rend(); ++i) {
        i->CornerHits = 0;
        i->Crossings.clear();
        for (auto j = list.rbegin(); j != list.rend(); ++j) {
            if (j->Orientation != i->Orientation)
                Meet(*i, *j, analysis.Reach.X / 2, analysis.Reach.Y / 2);
        }
    }
}

void TruncateLineOvershoots(BoxAnalysis& analysis) {
    for (LineSeg& s : analysis.Segments) {
        const int count = s.CrossingCount();
        for (int step = 0; step < count; ++step) {
            const int k = s.IsVertical() ? count - 1 - step : step;
            const std::int16_t place = s.Crossings[static_cast<std::size_t>(k)];
            std::int16_t& start = s.IsVertical() ? s.T : s.L;
            std::int16_t& end = s.IsVertical() ? s.B : s.R;
            if (place - start == 1 || place - start == 2)
                start = place;
            if (end - place == 1 || end - place == 2)
                end = place;
        }
    }
}

void GroupParallelLines(BoxAnalysis& analysis) {
    std::vector<LineGroup>& groups = analysis.Groups;
    groups.clear();
    for (std::size_t index = 0; index < analysis.Segments.size(); ++index) {
        LineSeg s = analysis.Segments[index];
        if (index > 0)
            s.SourceIndex = static_cast<std::int16_t>(index);
        auto match = std::find_if(groups.begin(), groups.end(),
                                  [&](const LineGroup& g) { return Joins(g, s, analysis.Reach); });
        if (match == groups.end()) {
            match = groups.emplace(groups.end());
            match->Orientation = s.Orientation;
        }
        match->Members.push_back(s);
        SetExtent(*match, s);
    }
}

void KeepBestParallel(BoxAnalysis& analysis) {
    analysis.Segments.clear();
    for (LineGroup& group : analysis.Groups) {
        int length = 0;
        for (int index = 0; index < static_cast<int>(group.Members.size()); ++index) {
            const LineSeg& member = group.Members[static_cast<std::size_t>(index)];
            if (member.CrossingCount() == 2) {
                group.Best = index;
                break;
            }
            if (member.Length > length) {
                group.Best = index;
                length = member.Length;
            }
        }
        if (group.Best == -1)
            continue;
        analysis.Segments.push_back(group.Members[static_cast<std::size_t>(group.Best)]);
        analysis.Segments.back().BoxId = -1;
    }
    analysis.Groups.clear();
}

void RestoreLongLines(BoxAnalysis& analysis) {
    analysis.SaveGrid = analysis.WorkGrid.Clone();
    for (const LineSeg& segment : analysis.LongLines)
        Paint(analysis.SaveGrid, segment, true);
}

}  // namespace tavrene::test::plain
