#include "intake/SaneLibrary.h"

#include <dlfcn.h>
#include <pthread.h>

#include <optional>

// Takes the place of the system's function for all of the program. Some drivers read in a thread of their
// own, let it be killed at any moment and kill it when a page ends or jams; with the locks of the system that
// it held just then (the loader's, the locale's) the whole program would stand still for ever. So threads end
// only where they wait.
extern "C" int pthread_setcanceltype(int /*type*/, int* before) {
    if (before != nullptr)
        *before = PTHREAD_CANCEL_DEFERRED;
    return 0;
}

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
