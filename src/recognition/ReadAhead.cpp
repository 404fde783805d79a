#include "recognition/ReadAhead.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "app/Reason.h"

namespace tavrene::recognition {

ReadAhead::ReadAhead(std::size_t first, std::size_t end, int jobs, Read read)
    : end_(end),
      room_(2 * static_cast<std::size_t>(jobs)),
      read_(std::move(read)),
      next_(first),
      taken_(first),
      ready_(room_) {
    if (jobs > 1)
        StartWorkers(std::min(static_cast<std::size_t>(jobs), end - std::min(first, end)));
}

// A system that has no more threads gives fewer jobs, in the end the one that needs none.
void ReadAhead::StartWorkers(std::size_t count) {
    try {
        workers_.reserve(count);
        while (workers_.size() < count)
            workers_.emplace_back([this](const std::stop_token& stop) { Work(stop); });
    } catch (const std::system_error&) {
        return;
    }
}

ReadAhead::~ReadAhead() {
    // All are told before the first is waited for.
    for (std::jthread& worker : workers_)
        worker.request_stop();
    workers_.clear();
}

FormReading ReadAhead::ReadOrFail(std::size_t index) const {
    FormReading reading;
    try {
        reading = read_(index);
    } catch (const std::exception& error) {
        reading.failure = app::ReasonOf(error);
    }
    return reading;
}

// Between the locks nothing is allocated: where memory ran out, what is left is the reason of one form.
void ReadAhead::Work(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return HasRoom(); }) && !stop.stop_requested()) {
        const std::size_t index = next_++;
        lock.unlock();
        FormReading reading = ReadOrFail(index);
        lock.lock();
        ready_[index % room_] = std::move(reading);
        changed_.notify_all();
    }
}

FormReading ReadAhead::Take() {
    if (workers_.empty())
        return ReadOrFail(taken_++);
    std::unique_lock lock(mutex_);
    std::optional<FormReading>& place = ready_[taken_ % room_];
    changed_.wait(lock, [&place] { return place.has_value(); });
    FormReading reading = *std::exchange(place, std::nullopt);
    ++taken_;
    changed_.notify_all();
    return reading;
}

}  // namespace tavrene::recognition
