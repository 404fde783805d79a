#pragma once

#include "boxes/BoxAnalysis.h"

namespace tavrene::boxes {

/// What the page shows along the edges of a rectangle. A printed box is closed at its corners and empty;
/// letters that look like one to line finding have round corners or a stroke across.
struct BoxOutline {
    int OpenCorners = 0;    ///< 0 to 4: corners with background within the first pixels of their two arms.
    bool IsEmpty = true;    ///< Little ink well inside the edges.
    bool IsOnPrint = true;  ///< No edge lies farther than two pixels from the middle of its printed line.

    /// Every side shows a straight line between its corners, as those of a box with rounded or gapped corners
    /// do. Asked for only where a corner is open or ink is inside.
    bool HasStraightSides = false;

    /// One face of each of the sides has no step at all. Asked for like the above.
    bool IsDeadStraight = false;

    /// Corners are open and sides bend even in their middle, more than print that runs into a side makes
    /// them.
    bool HasBow = false;

    bool IsClosed() const { return OpenCorners == 0; }
    bool operator==(const BoxOutline&) const = default;
};

/// A rectangle that the rules have assembled, with what the page shows there.
struct RuledBox {
    BoxRect Box;
    BoxOutline Outline;
};

/// Looks at `grid` up to one pixel beside the rectangle's edges. The rectangle may lie partly outside.
BoxOutline LookAtOutline(const imaging::WorkGrid& grid, const BoxRect& box);

}  // namespace tavrene::boxes
