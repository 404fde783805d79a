#include "intake/StagedPages.h"

namespace tavrene::intake {
namespace {

constexpr const char* kPrefix = "incoming-";

}  // namespace

void StagedPages::Clean(app::Files& files, const std::string& folder) {
    for (const std::string& name : files.List(folder, std::string(kPrefix) + "*.tmp"))
        files.Delete(folder + name);
}

void StagedPages::Add(std::span<const std::byte> image) {
    const std::string path = folder_ + kPrefix + std::to_string(paths_.size() + 1) + ".tmp";
    files_.Write(path, image);
    paths_.push_back(path);
}

void StagedPages::MoveTo(const std::string& folder, std::span<const std::string> names) {
    for (std::size_t k = 0; k < names.size(); ++k) {
        files_.Move(paths_[k], folder + names[k]);
        paths_[k] = folder + names[k];
    }
    paths_.clear();
}

void StagedPages::Discard() {
    for (const std::string& path : paths_) {
        try {
            files_.Delete(path);
        } catch (const app::FileError&) {
            // What made the work end is told; a page that stays behind in `Temp` goes at the next start.
        }
    }
}

}  // namespace tavrene::intake
