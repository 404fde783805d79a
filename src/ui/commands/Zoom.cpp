#include "ui/commands/Zoom.h"

#include <algorithm>
#include <cmath>

#include "app/Numeric.h"

namespace tavrene::commands {
namespace {

constexpr double kLowestZoom = 2;
constexpr double kHighestZoom = 6500;

bool HasArea(const Extent& extent) {
    return extent.width > 0 && extent.height > 0;
}

}  // namespace

double ZoomedIn(double percent) {
    double next = std::nearbyint(percent + percent / 4);
    if (next == percent)
        next = percent + 1;
    return std::min(next, kHighestZoom);
}

double ZoomedOut(double percent) {
    return std::max(std::nearbyint(percent - percent / 5), kLowestZoom);
}

double ZoomToFitPage(const Extent& page, const Extent& view) {
    if (!HasArea(page) || !HasArea(view))
        return 100;
    return 100 * std::min(view.width / page.width, view.height / page.height);
}

double ZoomToFitWidth(const Extent& page, const Extent& view, double scrollBar) {
    if (!HasArea(page) || !HasArea(view))
        return 100;
    const double scale = view.width / page.width;
    if (page.height * scale <= view.height || view.width <= scrollBar)
        return 100 * scale;
    return 100 * (view.width - scrollBar) / page.width;
}

}  // namespace tavrene::commands
