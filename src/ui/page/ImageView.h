#pragma once

#include <QGraphicsView>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "app/Files.h"
#include "imaging/PageRects.h"
#include "imaging/PageView.h"
#include "ui/page/BoxLayer.h"
#include "ui/page/PageItem.h"
#include "ui/page/PageTool.h"
#include "ui/page/RectItem.h"

namespace tavrene::ui {

/// The image view `ImgEdit1`: one page and the rectangles over it. The scene is the page frame in image
/// pixels. What the left button does there is a tool's business; the wheel with Ctrl zooms around the
/// pointer, and the page can be dragged by the middle button.
class ImageView final : public QGraphicsView, public imaging::PageView, public imaging::PageRects {
  public:
    /// `files` must outlive the view.
    ImageView(const app::Files& files, QWidget* parent);

    /// Replaces the page. One of the size of the page before it is shown scrolled as that was, also when the
    /// view was cleared between them, any other from its top left corner. Rectangles stay, because a form's
    /// boxes are drawn before its page is shown.
    void ShowFile(const std::string& path) override;

    /// Takes the page and all rectangles away.
    void Clear() override;
    double Zoom() const override { return zoom_; }

    /// Set while there is no page, the next page starts at its top left corner.
    void SetZoom(double percent) override;
    void Refresh() override;

    void DrawRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) override;
    void ClearRects() override;

    /// What is said in the place of a page while there is none.
    void SetHint(const QString& hint);

    /// The boxes that can be edited; they go with the other rectangles.
    BoxLayer& Boxes() { return *boxes_; }

    /// Adds a rectangle that is the caller's to change; `ClearRects` takes it away.
    RectItem* AddRect(int group, const imaging::PageRect& rect, imaging::RectStyle style);

    /// All rectangles that are drawn.
    std::vector<RectItem*> Rects() const;

    /// The page in its own frame; empty without one.
    QRectF PageRect() const { return page_->boundingRect(); }

    /// Lets the view scroll to a place beside the page.
    void MakeReachable(const QRectF& rect);

    /// The tool of the left button; null for none. It must outlive its use.
    void SetTool(PageTool* tool);

    /// Gives up what the tool is doing; false when it does nothing.
    bool CancelTool() { return tool_ != nullptr && tool_->Cancel(); }

    /// `handler` is offered the arrow keys as steps in image pixels, x to the right and y down; when it does
    /// not take one, the view scrolls.
    void SetArrowHandler(std::function<bool(int dx, int dy)> handler) { takeArrow_ = std::move(handler); }

    /// Zooms in and out by the steps of the zoom commands, and to what fits; nothing without a page.
    void ZoomIn();
    void ZoomOut();
    void ZoomToOriginal();
    void FitPage();
    void FitWidth();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool HasPage() const { return !page_->Size().isEmpty(); }
    void SetPage(const QImage& image);
    void ScrollTo(const QPoint& offset);
    QPointF PagePoint(const QMouseEvent& event) const;
    void Pan(const QPoint& position);
    void ShowCursorAt(const QPointF& point);

    const app::Files& files_;
    PageItem* page_;
    QGraphicsItem* rects_;  ///< Parent of all rectangles, so that they go in one step.
    std::unique_ptr<BoxLayer> boxes_;
    PageTool* tool_ = nullptr;
    std::function<bool(int, int)> takeArrow_;
    std::optional<QPoint> panFrom_;
    QString hint_;
    double zoom_ = 100;
    QSize lastSize_;        ///< Of the page shown last,
    QPoint lastScroll_;     ///< and how far it was scrolled when it was taken away.
    int wheelTurned_ = 0;   ///< What is left of the wheel's way to the next step.
    bool isUnseen_ = true;  ///< The page has not been painted yet, so the person has scrolled nowhere.
};

}  // namespace tavrene::ui
