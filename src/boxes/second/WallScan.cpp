#include "boxes/second/WallScan.h"

#include "boxes/RunScan.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;
using Word = WorkGrid::Word;

class Scan {
  public:
    Scan(const InnerFaces& faces, Inside inside, const WallLengths& lengths)
        : faces_(inside == Inside::ToTheRight ? faces.Left : faces.Right),
          columns_(faces.Columns),
          inwards_(static_cast<int>(inside)),
          lengths_(lengths),
          near_(columns_.Row(0).size()) {}

    std::vector<Wall> Run() {
        for (int column = 1; column + 1 < columns_.Rows(); ++column)
            ScanColumn(column);
        return std::move(walls_);
    }

  private:
    void ScanColumn(int column);
    bool IsLeftByLine(int column, int first, int last) const;
    void Close(const Wall& wall);

    int Count(int column, const Wall& wall) const {
        return faces_.Bits.CountInkInRow(column, wall.First, wall.Last);
    }

    const LineBits& faces_;
    const WorkGrid& columns_;
    int inwards_;
    WallLengths lengths_;
    std::vector<Word> near_;
    std::vector<Wall> walls_;
};

// Between the pieces of a wall lies a break, or a line that goes inwards from there.
bool Scan::IsLeftByLine(int column, int first, int last) const {
    for (int row = first; row <= last; ++row) {
        if (columns_.IsInk(row, column + inwards_) && columns_.IsInk(row, column + 2 * inwards_) &&
            columns_.IsInk(row, column + 3 * inwards_))
            return true;
    }
    return false;
}

void Scan::Close(const Wall& wall) {
    if (wall.Length() < lengths_.Shortest || wall.Length() > lengths_.Longest)
        return;
    // The columns beside show the same wall; it belongs to the one with most of it.
    const int own = Count(wall.Column, wall);
    if (own * 3 < wall.Length() || own <= Count(wall.Column - 1, wall) || own < Count(wall.Column + 1, wall))
        return;
    walls_.push_back(wall);
}

void Scan::ScanColumn(int column) {
    const std::span<const Word> before = faces_.Bits.Row(column - 1);
    const std::span<const Word> middle = faces_.Bits.Row(column);
    const std::span<const Word> after = faces_.Bits.Row(column + 1);
    Word any = 0;
    for (std::size_t index = 0; index < near_.size(); ++index) {
        near_[index] = before[index] | middle[index] | after[index];
        any |= middle[index];
    }
    if (any == 0)
        return;
    Wall wall{column, 0, -1};
    ForEachRun(near_, columns_.Width(), [&](int start, int end) {
        const bool goesOn = wall.Length() > 0 && start - wall.Last - 1 <= kLongestBreak &&
                            !IsLeftByLine(column, wall.Last + 1, start - 1);
        if (!goesOn) {
            Close(wall);
            wall.First = start;
        }
        wall.Last = end - 1;
    });
    Close(wall);
}

}  // namespace

std::vector<Wall> FindWalls(const InnerFaces& faces, Inside inside, const WallLengths& lengths) {
    if (faces.Columns.Rows() == 0)
        return {};
    return Scan(faces, inside, lengths).Run();
}

}  // namespace tavrene::boxes
