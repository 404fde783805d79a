#include "app/Clock.h"

#include <chrono>

namespace tavrene::app {

LocalTime ToLocalTime(std::time_t time) {
    std::tm parts{};
    localtime_r(&time, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec};
}

LocalTime SystemClock::Now() const {
    return ToLocalTime(std::time(nullptr));
}

double SystemClock::Seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace tavrene::app
