#include "imaging/ImageLibrary.h"

#include <dlfcn.h>

#include <stdexcept>

namespace tavrene::imaging {
namespace {

const ImageLibrary* Loaded() {
    static const std::unique_ptr<ImageLibrary> library = LoadImageLibrary(kImageLibraryFile);
    return library.get();
}

template <typename Function>
bool Resolve(void* file, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(file, name));
    return function != nullptr;
}

}  // namespace

// The file is never closed: handles of the library may live as long as the program.
std::unique_ptr<ImageLibrary> LoadImageLibrary(const char* file) {
    void* const handle = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr)
        return nullptr;
    auto library = std::make_unique<ImageLibrary>();
    bool complete = true;
#define TAVRENE_RESOLVE(name) complete = Resolve(handle, "FreeImage_" #name, library->name) && complete;
    TAVRENE_IMAGE_LIBRARY(TAVRENE_RESOLVE)
#undef TAVRENE_RESOLVE
    return complete ? std::move(library) : nullptr;
}

bool HasImageLibrary() {
    return Loaded() != nullptr;
}

const ImageLibrary& Library() {
    if (Loaded() == nullptr)
        throw std::runtime_error("FreeImage is not available");
    return *Loaded();
}

}  // namespace tavrene::imaging
