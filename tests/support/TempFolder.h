#pragma once

#include <string>

#include "app/TemporaryFolder.h"

namespace tavrene::test {

/// A new empty folder for one test.
class TempFolder : public app::TemporaryFolder {
  public:
    TempFolder() : TemporaryFolder("tavrene-test") {}
};

/// Whole-file access for tests; a missing file reads as empty text.
std::string ReadText(const std::string& path);
void WriteText(const std::string& path, const std::string& text);

}  // namespace tavrene::test
