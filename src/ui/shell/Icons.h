#pragma once

#include <QIcon>
#include <string_view>

namespace tavrene::ui {

/// The picture of a command by its name in the command table; drawn from lines at whatever size is asked for,
/// paler when disabled. No icon for a name without a picture.
QIcon IconOf(std::string_view name);

}  // namespace tavrene::ui
