#include "Floor.h"

#include <FreeImage.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tavrene::bench {
namespace {

class Scratch {
  public:
    Scratch() : path_((std::filesystem::temp_directory_path() / "tavrene-benchmark-XXXXXX").string()) {
        if (::mkdtemp(path_.data()) == nullptr)
            throw std::runtime_error("there is no temporary folder");
    }
    ~Scratch() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace

void LoadAndSave(const std::string& page, const std::string& copy) {
    FIBITMAP* const bitmap = FreeImage_Load(FIF_TIFF, page.c_str(), 0);
    const bool saved = bitmap != nullptr && FreeImage_Save(FIF_TIFF, bitmap, copy.c_str(), TIFF_CCITTFAX4);
    FreeImage_Unload(bitmap);
    if (!saved)
        throw std::runtime_error("the page cannot be loaded and saved: " + page);
}

const std::string& ScratchFolder() {
    static const Scratch scratch;
    return scratch.Path();
}

}  // namespace tavrene::bench
