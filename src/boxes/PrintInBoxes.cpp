#include "boxes/PrintInBoxes.h"

namespace tavrene::boxes {
namespace {

// Print inside belongs to the form when so many boxes of a size have it, and so large a share of all.
constexpr int kPrintedBoxes = 8;
constexpr int kPrintedShare = 3;

// On a slanting page many sides have a step, so not every box can be asked to have none.
constexpr int kStraightShare = 4;

bool IsSound(const BoxOutline& outline) {
    return outline.IsOnPrint && outline.IsClosed() && (outline.IsEmpty || outline.HasStraightSides);
}

}  // namespace

void PrintInBoxes::Add(const RuledBox& box) {
    if (!IsSound(box.Outline))
        return;
    const BoxSize size = SizeOf(box.Box);
    (box.Outline.IsEmpty ? empty_ : inked_).Add(size);
    if (!box.Outline.IsEmpty && box.Outline.IsDeadStraight)
        straight_.Add(size);
    ++all_;
}

bool PrintInBoxes::BelongsTo(const RuledBox& box) const {
    const BoxSize size = SizeOf(box.Box);
    const int inked = inked_.CountNear(size);
    return IsSound(box.Outline) && inked >= kPrintedBoxes && inked * kPrintedShare >= all_ &&
           inked > empty_.CountNear(size) && straight_.CountNear(size) * kStraightShare >= inked;
}

}  // namespace tavrene::boxes
