#pragma once

#include <span>
#include <string>
#include <vector>

#include "app/Files.h"

namespace tavrene::intake {

/// The images of one file's pages in the `Temp` folder, until all of them are there. They go with this object
/// unless they were moved; those of a program that was killed go at the next start.
class StagedPages {
  public:
    /// `folder` ends in a separator.
    StagedPages(app::Files& files, std::string folder) : files_(files), folder_(std::move(folder)) {}
    ~StagedPages() { Discard(); }
    StagedPages(const StagedPages&) = delete;
    StagedPages& operator=(const StagedPages&) = delete;

    /// Throws `app::FileError`.
    void Add(std::span<const std::byte> image);

    /// Moves the images to `folder` (ending in a separator) under these names, in the order in which they
    /// were added. When one cannot be moved, all are gone again. Throws `app::FileError`.
    void MoveTo(const std::string& folder, std::span<const std::string> names);

  private:
    void Discard();

    app::Files& files_;
    std::string folder_;
    std::vector<std::string> paths_;
};

}  // namespace tavrene::intake
