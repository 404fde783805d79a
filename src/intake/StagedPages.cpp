#include "intake/StagedPages.h"

#include "app/DiskFile.h"

namespace tavrene::intake {

void StagedPages::Add(std::span<const std::byte> image) {
    // Two windows may bring in at the same time.
    const std::string path = app::disk::TemporaryNeighbour(folder_);
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
