#pragma once

#include <initializer_list>
#include <string_view>

#include "imaging/WorkGrid.h"

namespace tavrene::test {

/// A grid from rows of text, the topmost first: '#' is ink, everything else background. Columns are padded to
/// words of 32 as the image library does.
inline imaging::WorkGrid GridOf(std::initializer_list<std::string_view> rows) {
    const int width = static_cast<int>(rows.begin()->size());
    const int height = static_cast<int>(rows.size());
    imaging::WorkGrid grid(width, (width + 31) / 32 * 32, height);
    int row = height;
    for (const std::string_view text : rows) {
        --row;
        for (int column = 0; column < width; ++column) {
            if (text[static_cast<std::size_t>(column)] == '#')
                grid.SetInk(column, row);
        }
    }
    return grid;
}

}  // namespace tavrene::test
