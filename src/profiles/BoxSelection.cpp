#include "profiles/BoxSelection.h"

#include <algorithm>
#include <utility>

namespace tavrene::profiles {

BoxSelection::BoxSelection(int number) : BoxSelection(std::vector<int>{}, number) {}

BoxSelection::BoxSelection(std::vector<int> numbers, int current) : current_(current), anchor_(current) {
    if (current == 0)
        return;
    numbers_ = std::move(numbers);
    numbers_.push_back(current);
    std::sort(numbers_.begin(), numbers_.end());
    numbers_.erase(std::unique(numbers_.begin(), numbers_.end()), numbers_.end());
}

bool BoxSelection::Has(int number) const {
    return std::binary_search(numbers_.begin(), numbers_.end(), number);
}

BoxSelection BoxSelection::Toggled(int number) const {
    if (!Has(number))
        return {numbers_, number};
    std::vector<int> others = numbers_;
    std::erase(others, number);
    if (others.empty())
        return *this;
    const int current = number == current_ ? others.front() : current_;
    return {std::move(others), current};
}

BoxSelection BoxSelection::Spanning(std::vector<int> numbers, int current) const {
    BoxSelection spanning(std::move(numbers), current);
    if (anchor_ != 0)
        spanning.anchor_ = anchor_;
    return spanning;
}

BoxSelection BoxSelection::With(std::span<const int> numbers) const {
    if (numbers.empty())
        return *this;
    std::vector<int> all = numbers_;
    all.insert(all.end(), numbers.begin(), numbers.end());
    return {std::move(all), current_ != 0 ? current_ : numbers.front()};
}

std::vector<int> KeptNumbers(std::span<const OmrBox> boxes) {
    std::vector<int> kept;
    int number = 0;
    for (const OmrBox& box : boxes) {
        ++number;
        if (box.Checked)
            kept.push_back(number);
    }
    return kept;
}

int NextKept(std::span<const OmrBox> boxes, int number) {
    const std::vector<int> kept = KeptNumbers(boxes);
    const auto next = std::upper_bound(kept.begin(), kept.end(), number);
    if (next != kept.end())
        return *next;
    return kept.empty() ? 0 : kept.front();
}

}  // namespace tavrene::profiles
