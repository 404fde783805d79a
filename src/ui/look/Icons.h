#pragma once

#include <QIcon>
#include <string_view>

namespace tavrene::ui {

/// The picture of a command by its name in the command table: the file of that name below `:/icons`, painted
/// in the inks of the application's palette at whatever size is asked for, in one grey when disabled. No icon
/// for a name without a picture.
QIcon IconOf(std::string_view name);

}  // namespace tavrene::ui
