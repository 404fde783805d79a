#pragma once

#include <exception>
#include <new>
#include <string>

namespace tavrene::app {

/// What an exception says, in words for the operator: those of the language's own are none.
inline std::string ReasonOf(const std::exception& error) {
    return dynamic_cast<const std::bad_alloc*>(&error) != nullptr ? "there is not enough memory for it"
                                                                  : error.what();
}

}  // namespace tavrene::app
