#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tavrene::imaging {

/// Numbers read from foreign bytes at any offset; outside the bytes everything reads as 0.
class ByteReader {
  public:
    enum class Order { LittleEndian, BigEndian };

    ByteReader(std::span<const std::byte> bytes, Order order) : bytes_(bytes), order_(order) {}

    bool Holds(std::uint64_t offset, std::uint64_t length) const {
        return offset <= bytes_.size() && length <= bytes_.size() - offset;
    }

    /// An unsigned number of `length` bytes, at most 8.
    std::uint64_t Number(std::uint64_t offset, unsigned length) const {
        if (!Holds(offset, length))
            return 0;
        std::uint64_t value = 0;
        for (unsigned k = 0; k < length; ++k) {
            const unsigned place = order_ == Order::BigEndian ? k : length - 1 - k;
            value = (value << 8U) | static_cast<std::uint64_t>(bytes_[offset + place]);
        }
        return value;
    }

  private:
    std::span<const std::byte> bytes_;
    Order order_;
};

}  // namespace tavrene::imaging
