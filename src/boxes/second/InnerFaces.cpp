#include "boxes/second/InnerFaces.h"

#include <algorithm>
#include <bit>

#include "boxes/GridTranspose.h"

namespace tavrene::boxes {
namespace {

using imaging::WorkGrid;
using Word = WorkGrid::Word;
constexpr int kWordBits = WorkGrid::kWordBits;

// The ink of every line that has none on the line `step` further on.
LineBits FacesTowards(const WorkGrid& lines, int step) {
    LineBits faces{WorkGrid(lines.Width(), lines.Columns(), lines.Rows())};
    for (int line = 0; line < lines.Rows(); ++line) {
        const std::span<const Word> ink = lines.Row(line);
        const std::span<Word> out = faces.Bits.Row(line);
        const int beside = line + step;
        if (beside < 0 || beside >= lines.Rows())
            continue;
        const std::span<const Word> next = lines.Row(beside);
        for (std::size_t index = 0; index < ink.size(); ++index)
            out[index] = ink[index] & ~next[index];
    }
    return faces;
}

Word MaskFor(int word, int first, int last) {
    const int low = std::max(first - word * kWordBits, 0);
    const int high = std::min(last - word * kWordBits, kWordBits - 1);
    return (~Word{0} << low) & (~Word{0} >> (kWordBits - 1 - high));
}

}  // namespace

int LineBits::CountNear(int line, int first, int last) const {
    first = std::max(first, 0);
    last = std::min(last, Length() - 1);
    if (last < first || line < 1 || line + 1 >= Lines())
        return 0;
    const std::span<const Word> before = Bits.Row(line - 1);
    const std::span<const Word> middle = Bits.Row(line);
    const std::span<const Word> after = Bits.Row(line + 1);
    int count = 0;
    for (int word = first / kWordBits; word <= last / kWordBits; ++word) {
        const auto index = static_cast<std::size_t>(word);
        count += std::popcount((before[index] | middle[index] | after[index]) & MaskFor(word, first, last));
    }
    return count;
}

InnerFaces::InnerFaces(const WorkGrid& page)
    : Columns(Transposed(page)),
      Left(FacesTowards(Columns, 1)),
      Right(FacesTowards(Columns, -1)),
      Lower(FacesTowards(page, 1)),
      Upper(FacesTowards(page, -1)) {}

}  // namespace tavrene::boxes
