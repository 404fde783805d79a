#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "recognition/FormReader.h"

namespace tavrene::recognition {

/// Reads the forms of a list, several at a time, for one hand that takes them in the order of the list. Never
/// more than twice as many as are read at a time lie ready or are under way, however slow the hand is.
class ReadAhead {
  public:
    using Read = std::function<FormReading(std::size_t index)>;

    /// Forms `first` to `end` - 1. With one job each is read when it is asked for, and there is no thread
    /// beside the caller's; otherwise `read` is called by several threads. What it throws is the failure of
    /// that form alone.
    ReadAhead(std::size_t first, std::size_t end, int jobs, Read read);

    /// Forms that nobody has taken are dropped; those under way are finished first.
    ~ReadAhead();
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;

    /// The next form of the list.
    FormReading Take();

  private:
    void StartWorkers(std::size_t count);
    FormReading ReadOrFail(std::size_t index) const;
    void Work(const std::stop_token& stop);
    bool HasRoom() const { return next_ < end_ && next_ < taken_ + room_; }

    const std::size_t end_;
    const std::size_t room_;
    const Read read_;
    std::mutex mutex_;
    std::condition_variable_any changed_;
    std::size_t next_;                               // the form that is read next
    std::size_t taken_;                              // the form that is taken next
    std::vector<std::optional<FormReading>> ready_;  // form k at place k % `room_`
    std::vector<std::jthread> workers_;
};

}  // namespace tavrene::recognition
