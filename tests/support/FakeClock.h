#pragma once

#include "app/Clock.h"

namespace tavrene::test {

/// A clock that a test sets; each question for seconds moves it on by `tick`.
class FakeClock final : public app::Clock {
  public:
    app::LocalTime now{2024, 3, 5, 14, 5, 9};
    double tick = 0.0;

    app::LocalTime Now() const override { return now; }
    double Seconds() const override { return seconds_ += tick; }

  private:
    mutable double seconds_ = 0.0;
};

}  // namespace tavrene::test
