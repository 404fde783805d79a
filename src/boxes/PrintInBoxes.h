#pragma once

#include <vector>

#include "boxes/BoxOutline.h"
#include "boxes/SizeTable.h"

namespace tavrene::boxes {

/// Exams print a letter or a digit inside every box: what counts against a single rectangle then speaks for
/// the form. A letter that itself looks closed, such as a B, bends at least one of its sides.
class PrintInBoxes {
  public:
    void Add(const RuledBox& box);

    /// Whether the ink inside `box` is print as the boxes of its size have it; asked for when all rectangles
    /// of the page were added.
    bool BelongsTo(const RuledBox& box) const;

  private:
    SizeTable empty_;
    SizeTable inked_;
    SizeTable straight_;  // Of the inked ones.
    int all_ = 0;
};

}  // namespace tavrene::boxes
