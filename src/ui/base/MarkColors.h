#pragma once

#include <QColor>

namespace tavrene::ui {

/// The colours of marks, on the page and wherever else they are shown: told apart by the colour-blind, too.
inline constexpr QColor kMarkedColor(0, 114, 178);
inline constexpr QColor kEmptyColor(213, 94, 0);
inline constexpr QColor kByHandColor(240, 228, 66);

}  // namespace tavrene::ui
