#pragma once

#include <QColor>

namespace tavrene::ui {

/// How much one colour stands out from another, from 1 to 21: the contrast ratio of WCAG 2.1, which asks for
/// 4.5 of texts and for 3 of what else has to be seen.
double Contrast(const QColor& a, const QColor& b);

inline constexpr double kTextContrast = 4.5;
inline constexpr double kSignContrast = 3;

}  // namespace tavrene::ui
