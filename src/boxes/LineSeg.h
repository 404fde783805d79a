#pragma once

#include <cstdint>
#include <vector>

namespace tavrene::boxes {

enum class Orientation : std::int16_t { Horizontal = 0, Vertical = 1 };

/// The other one of the two.
constexpr Orientation Across(Orientation orientation) {
    return orientation == Orientation::Vertical ? Orientation::Horizontal : Orientation::Vertical;
}

/// One straight run of ink, in grid columns and rows (rows count upwards from the bottom scan line). A
/// horizontal segment has `T` = `B`, a vertical one `L` = `R`; the far end, `R` or `B`, is exclusive until a
/// crossing moves it.
struct LineSeg {
    std::int16_t L = 0;  ///< Left column.
    std::int16_t T = 0;  ///< Lower row.
    std::int16_t R = 0;  ///< Right column.
    std::int16_t B = 0;  ///< Higher row.
    boxes::Orientation Orientation = boxes::Orientation::Horizontal;
    std::int16_t BoxId = -1;       ///< Number of the box that took the segment, -1 for none.
    std::int16_t Link = 0;         ///< -1 on a side that assembly created where nothing was found.
    std::int16_t Aux = -1;         ///< Part of the record of a segment; finding boxes leaves it at -1.
    std::int16_t CornerHits = 0;   ///< Crossing segments that pass the end test.
    std::int16_t SourceIndex = 0;  ///< Index in the segment list before grouping.
    std::int16_t Length = 0;       ///< Pixels of the run when it was found; ends that move leave it alone.

    /// Columns (of a horizontal segment) or rows (of a vertical one) of the segments that cross it.
    std::vector<std::int16_t> Crossings;

    int CrossingCount() const { return static_cast<int>(Crossings.size()); }
    bool IsVertical() const { return Orientation == boxes::Orientation::Vertical; }
    bool operator==(const LineSeg&) const = default;
};

/// Nearly coincident parallel segments. Its extent is that of the member that joined last, so a group follows
/// a slanted or thick line from run to run.
struct LineGroup {
    std::vector<LineSeg> Members;
    boxes::Orientation Orientation = boxes::Orientation::Horizontal;
    int Best = -1;  ///< Index of the member that stays.
    std::int16_t MinX = 0;
    std::int16_t MaxX = 0;
    std::int16_t MinY = 0;
    std::int16_t MaxY = 0;
    bool operator==(const LineGroup&) const = default;
};

}  // namespace tavrene::boxes
