#include <QScrollBar>
#include <algorithm>

#include "ui/commands/Zoom.h"
#include "ui/page/ImageView.h"

namespace tavrene::ui {
namespace {

commands::Extent ExtentOf(const QSizeF& size) {
    return {size.width(), size.height()};
}

}  // namespace

void ImageView::ShowLarge(int group) {
    constexpr double kLegible = 28;  // pixels of the screen
    Emphasise(group);
    const QRectF box = boxes_->PlaceOf(group);
    const double side = std::min(box.width(), box.height());
    if (side <= 0)
        return;
    if (!own_)
        own_ = {zoom_, {horizontalScrollBar()->value(), verticalScrollBar()->value()}};
    if (side * zoom_ / 100 < kLegible)
        ApplyZoom(100 * kLegible / side);
    isUnseen_ = false;
    centerOn(box.center());
}

void ImageView::ZoomTo(double percent) {
    fit_ = ZoomFit::None;
    own_.reset();
    ApplyZoom(percent);
}

void ImageView::ZoomIn() {
    if (HasPage())
        ZoomTo(commands::ZoomedIn(zoom_));
}

void ImageView::ZoomOut() {
    if (HasPage())
        ZoomTo(commands::ZoomedOut(zoom_));
}

void ImageView::ZoomToOriginal() {
    ZoomTo(100);
}

void ImageView::KeepFit(ZoomFit fit) {
    fit_ = fit;
    own_.reset();
    Refit();
}

void ImageView::Refit() {
    if (own_)
        return;
    if (fit_ == ZoomFit::Page)
        FitPage();
    else if (fit_ == ZoomFit::Width)
        FitWidth();
}

// Whoever shows a page sets its zoom and draws its boxes in several steps; events that are posted come before
// the painting, so nothing is seen of them.
void ImageView::RefitBeforePainting() {
    if (fit_ != ZoomFit::None)
        QMetaObject::invokeMethod(
            this, [this] { Refit(); }, Qt::QueuedConnection);
}

void ImageView::FitPage() {
    if (HasPage())
        ApplyZoom(commands::ZoomToFitPage(ExtentOf(page_->Size()), ExtentOf(maximumViewportSize())));
}

void ImageView::FitWidth() {
    const double bar = verticalScrollBar()->sizeHint().width();
    if (HasPage())
        ApplyZoom(commands::ZoomToFitWidth(ExtentOf(page_->Size()), ExtentOf(maximumViewportSize()), bar));
}

}  // namespace tavrene::ui
