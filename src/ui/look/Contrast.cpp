#include "ui/look/Contrast.h"

#include <algorithm>
#include <cmath>

namespace tavrene::ui {
namespace {

// Relative luminance as WCAG 2.1 defines it.
double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
    const auto [dark, bright] = std::minmax({Luminance(a), Luminance(b)});
    return (bright + 0.05) / (dark + 0.05);
}

}  // namespace tavrene::ui
