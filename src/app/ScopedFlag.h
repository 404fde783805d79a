#pragma once

namespace tavrene::app {

/// Holds a flag up for as long as it lives, however its scope is left.
class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = false; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
};

}  // namespace tavrene::app
