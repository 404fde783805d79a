#pragma once

#include <exception>
#include <string>

namespace tavrene::test {

/// What the exception that ends `action` says; empty if none does.
template <typename Action>
std::string FaultOf(const Action& action) {
    try {
        action();
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

inline bool Has(const std::string& text, const std::string& piece) {
    return text.find(piece) != std::string::npos;
}

}  // namespace tavrene::test
