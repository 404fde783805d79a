#include "app/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>

#include "app/Files.h"

namespace tavrene::app {

namespace {

std::filesystem::path WhereTemporaryFilesLie() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (error)
        throw FileError("There is no folder for temporary files: " + error.message());
    return folder;
}

}  // namespace

TemporaryFolder::TemporaryFolder(std::string_view name)
    : path_(FromPath(WhereTemporaryFilesLie() / name) + "-XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr)
        throw FileError("Cannot create the folder " + path_);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(ToPath(path_), ignored);
}

}  // namespace tavrene::app
