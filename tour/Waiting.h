#pragma once

#include <functional>

namespace tavrene::tour {

constexpr int kLookAgain = 20;  // milliseconds

/// Lets the window work until that is so; throws std::runtime_error with `what` when a minute was not enough.
void WaitUntil(const std::function<bool()>& isSo, const char* what);

}  // namespace tavrene::tour
