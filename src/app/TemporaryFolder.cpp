#include "app/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>

#include "app/Files.h"

namespace tavrene::app {

TemporaryFolder::TemporaryFolder(std::string_view name)
    : path_(FromPath(std::filesystem::temp_directory_path() / name) + "-XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr)
        throw FileError("Cannot create the folder " + path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(ToPath(path_), ignored);
}

}  // namespace tavrene::app
