#include "recognition/SampleBoxes.h"

#include <algorithm>

#include "app/Numeric.h"

namespace tavrene::recognition {

std::vector<std::size_t> SampleBoxes(std::size_t count) {
    if (count == 0)
        return {};
    const double gaps = static_cast<double>(count - 1);
    const int step = std::max(1, app::RoundToInt(gaps / std::max(1.0, std::min(10.0, gaps))));
    std::vector<std::size_t> indices;
    for (std::size_t index = 0; index < count; index += static_cast<std::size_t>(step))
        indices.push_back(index);
    return indices;
}

}  // namespace tavrene::recognition
