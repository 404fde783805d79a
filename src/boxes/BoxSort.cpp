#include "boxes/BoxSort.h"

#include <utility>

namespace tavrene::boxes {
namespace {

class BoxSorter {
  public:
    BoxSorter(std::vector<BoxRect>& boxes, int width) : boxes_(boxes), width_(width) {}

    void Sort(int low, int high) {
        while (low < high) {
            const auto [left, right] = Partition(low, high);
            const bool leftIsSmaller = right - low < high - left;
            if (leftIsSmaller) {
                Sort(low, right);
                low = left;
            } else {
                Sort(left, high);
                high = right;
            }
        }
    }

  private:
    int Key(int index) const {
        const BoxRect& box = boxes_[static_cast<std::size_t>(index)];
        return box.T * width_ - box.L;
    }

    // Where the indexes have crossed: the right part begins at the first, the left one ends at the second.
    std::pair<int, int> Partition(int low, int high) {
        const int pivot = Key((low + high) / 2);
        while (low <= high) {
            while (Key(low) > pivot)
                ++low;
            while (Key(high) < pivot)
                --high;
            if (low <= high)
                std::swap(boxes_[static_cast<std::size_t>(low++)], boxes_[static_cast<std::size_t>(high--)]);
        }
        return {low, high};
    }

    std::vector<BoxRect>& boxes_;
    int width_;
};

}  // namespace

void SortBoxes(std::vector<BoxRect>& boxes, int width) {
    BoxSorter(boxes, width).Sort(0, static_cast<int>(boxes.size()) - 1);
}

}  // namespace tavrene::boxes
