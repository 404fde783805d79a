#include "intake/SaneLibrary.h"

#include <dlfcn.h>

#include <optional>

namespace tavrene::intake {
namespace {

constexpr const char* kLibraryFile = "libsane.so.1";

template <typename Function>
bool Resolve(void* file, const char* name, std::function<Function>& function) {
    function = reinterpret_cast<Function*>(dlsym(file, name));
    return function != nullptr;
}

// Never closed: what its back ends have begun may go on as long as the program.
std::optional<SaneLibrary> Load() {
    void* const file = dlopen(kLibraryFile, RTLD_NOW | RTLD_LOCAL);
    SaneLibrary sane;
    const bool isWhole =
        file != nullptr && Resolve(file, "sane_init", sane.Init) && Resolve(file, "sane_exit", sane.Exit) &&
        Resolve(file, "sane_get_devices", sane.GetDevices) && Resolve(file, "sane_open", sane.Open) &&
        Resolve(file, "sane_close", sane.Close) &&
        Resolve(file, "sane_get_option_descriptor", sane.GetOption) &&
        Resolve(file, "sane_control_option", sane.ControlOption) && Resolve(file, "sane_start", sane.Start) &&
        Resolve(file, "sane_get_parameters", sane.GetParameters) && Resolve(file, "sane_read", sane.Read) &&
        Resolve(file, "sane_cancel", sane.Cancel);
    return isWhole ? std::optional(std::move(sane)) : std::nullopt;
}

}  // namespace

const SaneLibrary* FindSane() {
    static const std::optional<SaneLibrary> library = Load();
    return library ? &*library : nullptr;
}

}  // namespace tavrene::intake
