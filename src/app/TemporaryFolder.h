#pragma once

#include <string>
#include <string_view>

namespace tavrene::app {

/// A new empty folder of the system's temporary one, removed with all its content at the end.
class TemporaryFolder {
  public:
    /// The folder's name begins with `name`. Throws `FileError` when it cannot be made.
    explicit TemporaryFolder(std::string_view name);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Without a trailing separator.
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

}  // namespace tavrene::app
