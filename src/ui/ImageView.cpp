#include "ui/ImageView.h"

#include <QGraphicsItemGroup>
#include <QPainter>
#include <QScrollBar>

#include "ui/PageImage.h"
#include "ui/RectItem.h"
#include "ui/commands/Zoom.h"

namespace tavrene::ui {
namespace {

commands::Extent ExtentOf(const QSizeF& size) {
    return {size.width(), size.height()};
}

void PaintEmptyHint(QPainter& painter, const QRect& area, const QPalette& palette) {
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.55F);
    painter.setPen(color);
    QFont title = painter.font();
    title.setPointSizeF(title.pointSizeF() * 1.35);
    const int half = area.height() / 2;
    painter.save();
    painter.setFont(title);
    painter.drawText(area.adjusted(16, 0, -16, -half - 4), Qt::AlignHCenter | Qt::AlignBottom,
                     "No page is shown");
    painter.restore();
    painter.drawText(area.adjusted(16, half + 4, -16, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     "Press Process to read the scans that wait in the folder ProcessIn.");
}

}  // namespace

ImageView::ImageView(const app::Files& files, QWidget* parent)
    : QGraphicsView(parent), files_(files), page_(new PageItem), rects_(new QGraphicsItemGroup) {
    setObjectName("ImgEdit1");
    setAccessibleName("Page image");
    setFrameShape(QFrame::NoFrame);
    setScene(new QGraphicsScene(this));
    scene()->setItemIndexMethod(QGraphicsScene::NoIndex);
    scene()->addItem(page_);
    scene()->addItem(rects_);
    setBackgroundBrush(palette().color(QPalette::Window).darker(112));
    setRenderHint(QPainter::SmoothPixmapTransform);
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    SetPage({});
}

void ImageView::SetPage(const QImage& image) {
    const bool otherSize = image.size() != page_->Size().toSize();
    page_->SetImage(image);
    scene()->setSceneRect(page_->boundingRect());
    if (otherSize) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->minimum());
        verticalScrollBar()->setValue(verticalScrollBar()->minimum());
    }
    viewport()->update();
}

void ImageView::ShowFile(const std::string& path) {
    SetPage(ReadPageImage(files_, path));
}

void ImageView::Clear() {
    ClearRects();
    SetPage({});
}

void ImageView::SetZoom(double percent) {
    zoom_ = percent;
    setTransform(QTransform::fromScale(percent / 100, percent / 100));
}

void ImageView::Refresh() {
    viewport()->repaint();
}

void ImageView::DrawRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) {
    (new RectItem(group, rect, style))->setParentItem(rects_);
}

void ImageView::ClearRects() {
    qDeleteAll(rects_->childItems());
}

void ImageView::ZoomIn() {
    if (HasPage())
        SetZoom(commands::ZoomedIn(zoom_));
}

void ImageView::ZoomOut() {
    if (HasPage())
        SetZoom(commands::ZoomedOut(zoom_));
}

void ImageView::ZoomToOriginal() {
    SetZoom(100);
}

void ImageView::FitPage() {
    if (HasPage())
        SetZoom(commands::ZoomToFitPage(ExtentOf(page_->Size()), ExtentOf(maximumViewportSize())));
}

void ImageView::FitWidth() {
    const double bar = verticalScrollBar()->sizeHint().width();
    if (HasPage())
        SetZoom(commands::ZoomToFitWidth(ExtentOf(page_->Size()), ExtentOf(maximumViewportSize()), bar));
}

void ImageView::paintEvent(QPaintEvent* event) {
    QGraphicsView::paintEvent(event);
    if (HasPage())
        return;
    QPainter painter(viewport());
    PaintEmptyHint(painter, viewport()->rect(), palette());
}

}  // namespace tavrene::ui
