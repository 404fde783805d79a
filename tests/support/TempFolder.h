#pragma once

#include <string>

namespace tavrene::test {

/// A new empty folder for one test, removed with all its content at the end.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// Without a trailing separator.
    const std::string& Path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

/// Whole-file access for tests; a missing file reads as empty text.
std::string ReadText(const std::string& path);
void WriteText(const std::string& path, const std::string& text);

}  // namespace tavrene::test
