#pragma once

#include <QWidget>

namespace tavrene::ui {

/// Paints a quiet text into the middle of a list that has nothing to show. Called from the paint event of the
/// list whose viewport this is.
void PaintEmptyHint(QWidget& viewport, const QString& text);

}  // namespace tavrene::ui
