#pragma once

#include <string>
#include <utility>

namespace tavrene::app {

/// Keeps two programs from working on one folder: a lock on the folder itself, so that no file tells of it.
/// The system holds it for as long as the process lives.
class FolderLock {
  public:
    /// How a folder is used: by one alone, or by those who have agreed to share it.
    enum class Use { Alone, Shared };

    /// `folder` need not be there.
    explicit FolderLock(std::string folder) : folder_(std::move(folder)) {}
    ~FolderLock() { Release(); }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// False when another one holds the folder in a way that keeps this out. Where nothing can be locked (a
    /// folder of another machine may refuse it) nobody can hold it: true.
    bool Take(Use use);

    /// Another one may take the folder from here on.
    void Release();

  private:
    std::string folder_;
    int descriptor_ = -1;
};

}  // namespace tavrene::app
