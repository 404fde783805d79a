#pragma once

#include <ctime>

namespace tavrene::app {

/// A moment of the local calendar; months and days count from 1, hours from 0 to 23.
struct LocalTime {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// The local calendar's moment of a system time.
LocalTime ToLocalTime(std::time_t time);

/// Where the program takes its time from.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual LocalTime Now() const = 0;

    /// Seconds since some fixed moment; only differences mean anything.
    virtual double Seconds() const = 0;
};

/// The clock of the machine.
class SystemClock final : public Clock {
  public:
    LocalTime Now() const override;
    double Seconds() const override;
};

}  // namespace tavrene::app
