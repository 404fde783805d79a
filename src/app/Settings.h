#pragma once

#include <cstdint>
#include <string>

namespace tavrene::app {

/// The eight values of section `Common`, held in memory for the whole run. Sizes are image pixels.
struct Settings {
    std::string WorkDir;  ///< UTF-8 path of the working folder, without a trailing separator.
    std::int16_t BoxMinWidth = 0;
    std::int16_t BoxMaxWidth = 0;
    std::int16_t BoxMinHeight = 0;
    std::int16_t BoxMaxHeight = 0;
    std::int16_t FillThreshold = 0;  ///< Percent of a box's area that must be ink.
    bool ProcessSingle = false;
    bool DisplayDuringProcess = false;
};

inline constexpr std::int16_t kDefaultBoxMinWidth = 16;
inline constexpr std::int16_t kDefaultBoxMaxWidth = 38;
inline constexpr std::int16_t kDefaultBoxMinHeight = 16;
inline constexpr std::int16_t kDefaultBoxMaxHeight = 34;
inline constexpr std::int16_t kDefaultFillThreshold = 8;

}  // namespace tavrene::app
