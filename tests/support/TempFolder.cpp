#include "support/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace tavrene::test {

TempFolder::TempFolder() : path_((std::filesystem::temp_directory_path() / "tavrene-test-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string ReadText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void WriteText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

}  // namespace tavrene::test
