#include "ui/base/FitToScreen.h"

#include <QScreen>

namespace tavrene::ui {

void ResizeWithinScreen(QWidget& window, const QSize& wanted) {
    // What a desktop draws around a window is known only once it stands; this is enough for all common ones.
    constexpr QSize kFrame(16, 48);
    window.resize(wanted.boundedTo(window.screen()->availableSize() - kFrame));
}

}  // namespace tavrene::ui
