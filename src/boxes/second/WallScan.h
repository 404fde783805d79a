#pragma once

#include <vector>

#include "boxes/second/InnerFaces.h"

namespace tavrene::boxes {

/// An upright wall of a box as its inner face shows it: the column of its innermost ink, and the rows from
/// `First` to `Last`, both inclusive. Breaks of a few rows are part of it.
struct Wall {
    int Column;
    int First;
    int Last;

    int Length() const { return Last - First + 1; }
};

/// Which way the inside of the box lies from a wall.
enum class Inside : int { ToTheRight = 1, ToTheLeft = -1 };

/// The longest break that a wall may have, in pixels.
inline constexpr int kLongestBreak = 5;

struct WallLengths {
    int Shortest;
    int Longest;
};

/// All walls whose inside lies `inside`, by column and row. A wall ends where a line leaves it inwards, so
/// that a ruling along a column of boxes is as many walls as there are boxes.
std::vector<Wall> FindWalls(const InnerFaces& faces, Inside inside, const WallLengths& lengths);

}  // namespace tavrene::boxes
