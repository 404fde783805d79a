#pragma once

#include <string>

namespace tavrene::app {

/// A number with the word that goes with it: "1 box", "3 boxes".
template <typename Count>
std::string Counted(Count count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace tavrene::app
