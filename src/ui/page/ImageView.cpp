#include "ui/page/ImageView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <limits>
#include <utility>

#include "ui/base/QtText.h"
#include "ui/page/PageImage.h"

namespace tavrene::ui {
namespace {

void PaintNoPage(QPainter& painter, const QRect& area, const QPalette& palette, const QString& hint) {
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.7F);
    painter.setPen(color);
    QFont title = painter.font();
    title.setPointSizeF(title.pointSizeF() * 1.35);
    const int half = area.height() / 2;
    painter.save();
    painter.setFont(title);
    painter.drawText(area.adjusted(16, 0, -16, -half - 4), Qt::AlignHCenter | Qt::AlignBottom,
                     Tr("ImageView", "No page is shown"));
    painter.restore();
    painter.drawText(area.adjusted(16, half + 4, -16, 0), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     hint);
}

// What was held during an event of the mouse may be let go while another window has the keyboard, of which
// nothing is heard.
class HeldMeanwhile {
  public:
    HeldMeanwhile(Qt::KeyboardModifiers& keys, Qt::KeyboardModifiers held) : keys_(keys) { keys_ = held; }
    ~HeldMeanwhile() { keys_ = {}; }
    HeldMeanwhile(const HeldMeanwhile&) = delete;
    HeldMeanwhile& operator=(const HeldMeanwhile&) = delete;

  private:
    Qt::KeyboardModifiers& keys_;
};

// Before the first place of either bar, which is not 0 where the page is smaller than the view.
constexpr QPoint kTopLeft(std::numeric_limits<int>::min(), std::numeric_limits<int>::min());

}  // namespace

ImageView::ImageView(const app::Files& files, QWidget* parent)
    : QGraphicsView(parent), files_(files), page_(new PageItem) {
    setObjectName("ImgEdit1");
    setAccessibleName(Tr("ImageView", "Page image"));
    setFrameShape(QFrame::NoFrame);
    setScene(new QGraphicsScene(this));
    scene()->setItemIndexMethod(QGraphicsScene::NoIndex);
    scene()->addItem(page_);
    setBackgroundBrush(palette().color(QPalette::Window).darker(112));
    setRenderHint(QPainter::SmoothPixmapTransform);
    setTransformationAnchor(QGraphicsView::AnchorViewCenter);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    viewport()->setMouseTracking(true);
    // What is dropped here is meant for the window.
    setAcceptDrops(false);
    boxes_ = std::make_unique<BoxLayer>(*this);
    SetPage({});
}

void ImageView::SetPage(const QImage& image) {
    if (HasPage()) {
        lastSize_ = page_->Size().toSize();
        lastScroll_ =
            own_ ? own_->scroll : QPoint{horizontalScrollBar()->value(), verticalScrollBar()->value()};
    }
    page_->SetImage(image);
    isTurned_ = false;
    if (own_) {
        const double zoom = own_->zoom;
        own_.reset();
        ApplyZoom(zoom);
    }
    Transform();
    // Without a rectangle of its own the scene would keep the room that earlier pages took.
    scene()->setSceneRect(HasPage() ? page_->boundingRect() : QRectF(0, 0, 1, 1));
    const bool sameSize = HasPage() && image.size() == lastSize_;
    ScrollTo(sameSize ? lastScroll_ : kTopLeft);
    isUnseen_ = !sameSize;
    RefitBeforePainting();
    viewport()->update();
}

void ImageView::ScrollTo(const QPoint& offset) {
    horizontalScrollBar()->setValue(std::max(offset.x(), horizontalScrollBar()->minimum()));
    verticalScrollBar()->setValue(std::max(offset.y(), verticalScrollBar()->minimum()));
}

void ImageView::SetHint(const QString& hint) {
    if (hint == hint_)
        return;
    hint_ = hint;
    viewport()->update();
}

void ImageView::ShowFile(const std::string& path) {
    SetPage(ReadPageImage(files_, path));
}

void ImageView::ShowPicture(const imaging::Bitmap& picture) {
    SetPage(ToImage(picture));
}

// What is scrolled to stays the same part of the picture that the person sees.
void ImageView::TurnPage(bool isTurned) {
    if (isTurned == isTurned_)
        return;
    const QPoint scroll{horizontalScrollBar()->value(), verticalScrollBar()->value()};
    isTurned_ = isTurned;
    Transform();
    ScrollTo(scroll);
}

// A turned page takes the same room as an upright one, so that scrolling goes on as before.
void ImageView::Transform() {
    const double scale = zoom_ / 100;
    const QSizeF size = page_->Size() * scale;
    setTransform(isTurned_ ? QTransform(-scale, 0, 0, -scale, size.width(), size.height())
                           : QTransform::fromScale(scale, scale));
}

void ImageView::Clear() {
    ClearRects();
    SetPage({});
}

void ImageView::SetZoom(double percent) {
    ApplyZoom(percent);
    RefitBeforePainting();
}

void ImageView::ApplyZoom(double percent) {
    zoom_ = percent;
    Transform();
    if (!HasPage())
        lastSize_ = {};
    if (isUnseen_)
        ScrollTo(kTopLeft);
    if (zoomed_)
        zoomed_(zoom_);
}

imaging::ScrollOffset ImageView::Scroll() const {
    const QTransform shown = viewportTransform();
    return {-shown.dx(), -shown.dy()};
}

void ImageView::Refresh() {
    Refit();
    viewport()->repaint();
}

bool ImageView::CancelTool() {
    isToolDown_ = false;
    return tool_ != nullptr && tool_->Cancel();
}

void ImageView::MakeReachable(const QRectF& rect) {
    if (!sceneRect().contains(rect))
        scene()->setSceneRect(sceneRect().united(rect));
}

void ImageView::UseTool(PageTool* tool) {
    CancelTool();
    tool_ = tool;
    viewport()->setCursor(Qt::ArrowCursor);
    ShowCursorAt(mapToScene(viewport()->mapFromGlobal(QCursor::pos())));
}

void ImageView::paintEvent(QPaintEvent* event) {
    QGraphicsView::paintEvent(event);
    isUnseen_ = false;
    if (HasPage() || !boxes_->IsEmpty())
        return;
    QPainter painter(viewport());
    PaintNoPage(painter, viewport()->rect(), palette(), hint_);
}

void ImageView::moveEvent(QMoveEvent* event) {
    QGraphicsView::moveEvent(event);
    pushedDown_ = event->pos().y() - event->oldPos().y();
}

// A page that is scrolled keeps its place on the screen, under the pointer of a person who works on it.
void ImageView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    QScrollBar& bar = *verticalScrollBar();
    const int by = std::exchange(pushedDown_, 0);
    if (bar.value() > bar.minimum())
        bar.setValue(bar.value() + by);
    Refit();
}

QPointF ImageView::PagePoint(const QMouseEvent& event) const {
    return viewportTransform().inverted().map(event.position());
}

void ImageView::mousePressEvent(QMouseEvent* event) {
    const HeldMeanwhile held(heldKeys_, event->modifiers());
    if (event->button() == Qt::MiddleButton) {
        panFrom_ = event->position().toPoint();
        viewport()->setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton && tool_ != nullptr) {
        isToolDown_ = true;
        tool_->Press(PagePoint(*event), event->modifiers());
    }
}

void ImageView::mouseMoveEvent(QMouseEvent* event) {
    const HeldMeanwhile held(heldKeys_, event->modifiers());
    if (panFrom_)
        Pan(event->position().toPoint());
    else if (tool_ != nullptr && event->buttons().testFlag(Qt::LeftButton))
        tool_->Drag(PagePoint(*event), event->modifiers());
    else
        ShowCursorAt(PagePoint(*event));
}

void ImageView::mouseReleaseEvent(QMouseEvent* event) {
    const HeldMeanwhile held(heldKeys_, event->modifiers());
    if (event->button() == Qt::MiddleButton)
        panFrom_.reset();
    else if (event->button() == Qt::LeftButton && std::exchange(isToolDown_, false) && tool_ != nullptr)
        tool_->Release(PagePoint(*event), event->modifiers());
    ShowCursorAt(PagePoint(*event));
}

void ImageView::Pan(const QPoint& position) {
    const QPoint by = position - *panFrom_;
    panFrom_ = position;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - by.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - by.y());
}

void ImageView::ShowCursorAt(const QPointF& point) {
    if (!panFrom_)
        viewport()->setCursor(tool_ == nullptr ? QCursor(Qt::ArrowCursor) : tool_->CursorAt(point));
}

void ImageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    event->accept();
    // Fine wheels and touch pads turn in small parts of a step.
    wheelTurned_ += event->angleDelta().y();
    const int steps = wheelTurned_ / QWheelEvent::DefaultDeltasPerStep;
    wheelTurned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    const QPointF held = viewportTransform().inverted().map(event->position());
    for (int step = 0; step < std::abs(steps); ++step)
        steps > 0 ? ZoomIn() : ZoomOut();
    const QPointF away = viewportTransform().map(held) - event->position();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(away.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(away.y()));
}

bool ImageView::focusNextPrevChild(bool next) {
    // What a drag holds stays the selected one.
    return isToolDown_ || (takeTab_ && takeTab_(next)) || QGraphicsView::focusNextPrevChild(next);
}

void ImageView::keyPressEvent(QKeyEvent* event) {
    static const std::map<int, QPoint> arrows = {
        {Qt::Key_Left, {-1, 0}}, {Qt::Key_Right, {1, 0}}, {Qt::Key_Up, {0, -1}}, {Qt::Key_Down, {0, 1}}};
    if (event->key() == Qt::Key_Escape && CancelTool())
        return;
    const auto arrow = arrows.find(event->key());
    if (arrow != arrows.end() && !event->modifiers().testFlag(Qt::AltModifier) && takeArrow_) {
        // What a drag holds stays where the drag puts it.
        if (isToolDown_)
            return;
        const QPoint by = arrow->second * (event->modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1);
        if (takeArrow_(
                {by.x(), by.y(), event->modifiers().testFlag(Qt::ControlModifier), event->isAutoRepeat()}))
            return;
    }
    QGraphicsView::keyPressEvent(event);
}

}  // namespace tavrene::ui
