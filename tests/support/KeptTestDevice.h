#pragma once

#include <dlfcn.h>

#include <filesystem>

namespace tavrene::test {

/// Keeps the test device of the scanner library loaded to the end, which the library itself would unload:
/// what the device does not give back can be told from our own leaks only while it is there.
inline void KeepTestDevice() {
    for (const auto& folder : std::filesystem::directory_iterator("/usr/lib")) {
        const std::filesystem::path device = folder.path() / "sane" / "libsane-test.so.1";
        std::error_code ignored;
        if (std::filesystem::exists(device, ignored))
            dlopen(device.c_str(), RTLD_LAZY | RTLD_NODELETE);
    }
}

}  // namespace tavrene::test
