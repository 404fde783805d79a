#pragma once

#include <QWidget>

namespace tavrene::ui {

/// Gives a window that is not shown yet the wanted size, or what the screen has room for with the frame and
/// the title bar around it.
void ResizeWithinScreen(QWidget& window, const QSize& wanted);

}  // namespace tavrene::ui
