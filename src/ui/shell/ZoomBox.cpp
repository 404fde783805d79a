#include "ui/shell/ZoomBox.h"

#include <QSignalBlocker>
#include <cmath>

#include "ui/base/CalmWheel.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

// Where the zoom commands end, and before them where fitting may.
constexpr int kLeast = 1;
constexpr int kMost = 6500;

}  // namespace

ZoomBox::ZoomBox() {
    setObjectName("ZoomPercent");
    setAccessibleName(Tr("ZoomBox", "Zoom in percent"));
    setToolTip(Tr("ZoomBox", "Zoom in percent; type another one"));
    setRange(kLeast, kMost);
    setSuffix(" %");
    setAlignment(Qt::AlignRight);
    setFrame(false);
    // A number is taken when it is whole, not digit by digit.
    setKeyboardTracking(false);
    new CalmWheel(*this);
}

void ZoomBox::Connect(ImageView& view) {
    view_ = &view;
    const auto show = [this](double percent) {
        const QSignalBlocker shown(this);
        setValue(static_cast<int>(std::lround(percent)));
    };
    view.SetZoomListener(show);
    show(view.Zoom());
    connect(this, &QSpinBox::valueChanged, &view, [&view](int percent) { view.ZoomTo(percent); });
}

void ZoomBox::stepBy(int steps) {
    if (view_ == nullptr)
        return;
    for (int step = 0; step < std::abs(steps); ++step)
        steps > 0 ? view_->ZoomIn() : view_->ZoomOut();
}

}  // namespace tavrene::ui
