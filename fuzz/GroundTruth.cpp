#include "GroundTruth.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    try {
        tavrene::samples::ParseGroundTruth(text);
    } catch (const std::runtime_error&) {
        return 0;
    }
    return 0;
}
