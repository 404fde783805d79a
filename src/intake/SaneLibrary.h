#pragma once

#include <sane/sane.h>

#include <functional>

namespace tavrene::intake {

/// The functions of the scanner library that are called, without their prefix. A test may put others in their
/// place.
struct SaneLibrary {
    std::function<decltype(sane_init)> Init;
    std::function<decltype(sane_exit)> Exit;
    std::function<decltype(sane_get_devices)> GetDevices;
    std::function<decltype(sane_open)> Open;
    std::function<decltype(sane_close)> Close;
    std::function<decltype(sane_get_option_descriptor)> GetOption;
    std::function<decltype(sane_control_option)> ControlOption;
    std::function<decltype(sane_start)> Start;
    std::function<decltype(sane_get_parameters)> GetParameters;
    std::function<decltype(sane_read)> Read;
    std::function<decltype(sane_cancel)> Cancel;
};

/// The library, loaded at the first question; nothing where it is not installed.
const SaneLibrary* FindSane();

}  // namespace tavrene::intake
