#pragma once

namespace tavrene::app {

/// Holds a flag up for as long as it lives, however its scope is left.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
};

}  // namespace tavrene::app
