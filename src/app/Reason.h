#pragma once

#include <exception>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tavrene::app {

/// What an exception says, in words for the operator: those of the program's own, which are runtime errors,
/// are sentences, those of the language's library are none.
inline std::string ReasonOf(const std::exception& error) {
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
        dynamic_cast<const std::length_error*>(&error) != nullptr)
        return "there is not enough memory for it";
    const bool isOwn = dynamic_cast<const std::runtime_error*>(&error) != nullptr &&
                       dynamic_cast<const std::system_error*>(&error) == nullptr;
    return isOwn ? error.what() : "a fault of the program keeps it from being done";
}

/// Takes a step; what it throws is given in those words, and nothing when it throws nothing.
template <typename Step>
std::string FailureOf(const Step& step) {
    try {
        step();
        return {};
    } catch (const std::exception& error) {
        return ReasonOf(error);
    }
}

}  // namespace tavrene::app
