#include "boxes/BoxSort.h"

#include <algorithm>

namespace tavrene::boxes {

void SortBoxes(std::vector<BoxRect>& boxes, int width) {
    const auto key = [width](const BoxRect& box) { return box.T * width - box.L; };
    std::stable_sort(boxes.begin(), boxes.end(),
                     [&key](const BoxRect& a, const BoxRect& b) { return key(a) > key(b); });
}

}  // namespace tavrene::boxes
