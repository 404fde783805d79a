#pragma once

#include <QIcon>
#include <QPalette>
#include <string_view>

namespace tavrene::ui {

/// What an icon lies on, and the ink of the texts there.
struct IconGround {
    QPalette::ColorRole ground = QPalette::Window;
    QPalette::ColorRole text = QPalette::WindowText;
};

/// The picture of a command by its name in the command table: the file of that name below `:/icons`, painted
/// in the inks of the application's palette at whatever size is asked for, in one grey when disabled. No icon
/// for a name without a picture.
QIcon IconOf(std::string_view name, IconGround ground = {});

}  // namespace tavrene::ui
