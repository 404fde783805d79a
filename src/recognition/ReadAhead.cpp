#include "recognition/ReadAhead.h"

#include <algorithm>
#include <utility>

namespace tavrene::recognition {

ReadAhead::ReadAhead(std::size_t first, std::size_t end, int jobs, Read read)
    : end_(end),
      room_(2 * static_cast<std::size_t>(jobs)),
      read_(std::move(read)),
      next_(first),
      taken_(first) {
    const std::size_t useful = std::min(static_cast<std::size_t>(jobs), end - std::min(first, end));
    for (std::size_t k = 0; jobs > 1 && k < useful; ++k)
        workers_.emplace_back([this](const std::stop_token& stop) { Work(stop); });
}

ReadAhead::~ReadAhead() {
    // All are told before the first is waited for.
    for (std::jthread& worker : workers_)
        worker.request_stop();
    workers_.clear();
}

void ReadAhead::Work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return HasRoom(); }) && !stop.stop_requested()) {
        const std::size_t index = next_++;
        lock.unlock();
        FormReading reading = read_(index);
        lock.lock();
        ready_.emplace(index, std::move(reading));
        changed_.notify_all();
    }
}

FormReading ReadAhead::Take() {
    if (workers_.empty())
        return read_(taken_++);
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return ready_.contains(taken_); });
    FormReading reading = std::move(ready_.extract(taken_).mapped());
    ++taken_;
    changed_.notify_all();
    return reading;
}

}  // namespace tavrene::recognition
