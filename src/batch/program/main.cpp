#include <atomic>
#include <csignal>
#include <iostream>

#include "app/SettingsStore.h"
#include "batch/Batch.h"

namespace {

std::atomic<bool> stop = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal may not wait");

}  // namespace

int main(int argc, char** argv) {
    using namespace tavrene;
    const auto options = batch::ReadOptions({argv, static_cast<std::size_t>(argc)});
    if (!options)
        return static_cast<int>(batch::Exit::Usage);
    if (options->help || options->version) {
        if (options->help)
            std::cout << batch::kUsage;
        else
            std::cout << "tavrene-batch (" << app::kApplicationName << ") " << TAVRENE_VERSION << '\n';
        return 0;
    }
    std::signal(SIGINT, [](int) { stop = true; });
    std::signal(SIGTERM, [](int) { stop = true; });
    return static_cast<int>(batch::RunBatch(*options, {std::cout, std::cerr, stop}));
}
