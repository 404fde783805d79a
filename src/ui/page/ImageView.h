#pragma once

#include <QGraphicsView>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "app/Files.h"
#include "imaging/PageScreen.h"
#include "ui/page/BoxLayer.h"
#include "ui/page/PageItem.h"
#include "ui/page/PageTool.h"

namespace tavrene::ui {

/// What the zoom follows by itself, whatever page is shown and however large the view is.
enum class ZoomFit { None, Page, Width };

/// An arrow key, in image pixels, x to the right and y down.
struct ArrowStep {
    int dx = 0;
    int dy = 0;
    bool stretches = false;  ///< With Ctrl: what it moves without it is to become larger or smaller.
    bool isHeld = false;     ///< The key has been down since the step before.
};

/// The image view `ImgEdit1`: one page and the rectangles over it. The scene is the page frame in image
/// pixels. What the left button does there is a tool's business; the wheel with Ctrl zooms around the
/// pointer, and the page can be dragged by the middle button.
class ImageView final : public QGraphicsView, public imaging::PageScreen {
  public:
    /// `files` must outlive the view.
    ImageView(const app::Files& files, QWidget* parent);

    /// Replaces the page. One of the size of the page before it is shown scrolled as that was, also when the
    /// view was cleared between them, any other from its top left corner. Rectangles stay, because a form's
    /// boxes are drawn before its page is shown.
    void ShowFile(const std::string& path) override;
    void ShowPicture(const imaging::Bitmap& picture) override;
    void TurnPage(bool isTurned) override;
    void Clear() override;
    double Zoom() const override { return zoom_; }

    /// Set while there is no page, the next page starts at its top left corner. While the zoom follows the
    /// size of the view, this one holds until the page is painted.
    void SetZoom(double percent) override;

    /// Told of every zoom that is set.
    void SetZoomListener(std::function<void(double percent)> zoomed) { zoomed_ = std::move(zoomed); }

    imaging::ScrollOffset Scroll() const override;
    void Refresh() override;
    void PutRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) override {
        boxes_->Put(group, rect, style);
    }
    void RemoveRect(int group) override { boxes_->Remove(group); }
    void ClearRects() override { boxes_->Clear(); }
    void Emphasise(int group) override { boxes_->Emphasise(group); }
    void ShowLarge(int group) override;
    void Mark(std::span<const int> groups, int current) override { boxes_->Mark(groups, current); }
    void SetTool(imaging::BoxTool tool, int nextGroup) override { boxes_->SetTool(tool, nextGroup); }

    /// What is said in the place of a page while there is none.
    void SetHint(const QString& hint);

    BoxLayer& Boxes() { return *boxes_; }

    /// What the boxes are called by those who read the page aloud.
    void SetNames(std::function<QString(int group)> names) { names_ = std::move(names); }
    QString NameOf(int group) const { return names_ ? names_(group) : QString(); }

    /// The page in its own frame; empty without one.
    QRectF PageRect() const { return page_->boundingRect(); }

    /// Where print ends at the right in a part of the page; the left side of one that is blank.
    double PrintedUpTo(const QRectF& part) const { return page_->PrintedUpTo(part); }

    /// Lets the view scroll to a place beside the page.
    void MakeReachable(const QRectF& rect);

    /// The tool of the left button; null for none. It must outlive its use.
    void UseTool(PageTool* tool);

    /// Gives up what the tool is doing; false when it does nothing.
    bool CancelTool();

    /// `handler` is offered the arrow keys; when it does not take one, the view scrolls.
    void SetArrowHandler(std::function<bool(const ArrowStep&)> handler) { takeArrow_ = std::move(handler); }

    /// `handler` is offered the Tab key, forwards or with Shift back; when it does not take it, the focus
    /// goes on.
    void SetTabHandler(std::function<bool(bool isForward)> handler) { takeTab_ = std::move(handler); }

    /// The keys that are held while the mouse is at work on the page; none at any other time.
    Qt::KeyboardModifiers HeldKeys() const { return heldKeys_; }

    /// The middle of what is in sight, in the page frame.
    QPointF Centre() const { return mapToScene(viewport()->rect().center()); }

    /// A zoom of the person's own, which ends following; in and out by the steps of the zoom commands,
    /// nothing without a page.
    void ZoomTo(double percent);
    void ZoomIn();
    void ZoomOut();
    void ZoomToOriginal();

    /// Follows the size of the view and the page from here on.
    void KeepFit(ZoomFit fit);
    ZoomFit Fit() const { return fit_; }

    /// Shows the whole page this once.
    void FitPage();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    bool HasPage() const { return !page_->Size().isEmpty(); }
    void SetPage(const QImage& image);
    void Transform();
    void ApplyZoom(double percent);
    void FitWidth();
    void Refit();
    void RefitBeforePainting();
    void ScrollTo(const QPoint& offset);
    QPointF PagePoint(const QMouseEvent& event) const;
    void Pan(const QPoint& position);
    void ShowCursorAt(const QPointF& point);

    const app::Files& files_;
    PageItem* page_;
    std::unique_ptr<BoxLayer> boxes_;
    PageTool* tool_ = nullptr;
    std::function<bool(const ArrowStep&)> takeArrow_;
    std::function<bool(bool)> takeTab_;
    std::function<void(double)> zoomed_;
    std::function<QString(int)> names_;
    Qt::KeyboardModifiers heldKeys_;
    bool isToolDown_ = false;  ///< The button that the tool works with is pressed.
    std::optional<QPoint> panFrom_;
    QString hint_;
    double zoom_ = 100;
    ZoomFit fit_ = ZoomFit::None;
    bool isTurned_ = false;
    /// How the person had the page before a box was shown large: so the next page is shown again.
    struct OwnView {
        double zoom;
        QPoint scroll;
    };
    std::optional<OwnView> own_;
    QSize lastSize_;        ///< Of the page shown last,
    QPoint lastScroll_;     ///< and how far it was scrolled when it was taken away.
    int pushedDown_ = 0;    ///< By what came to stand above the view, until the view has its new size.
    int wheelTurned_ = 0;   ///< What is left of the wheel's way to the next step.
    bool isUnseen_ = true;  ///< The page has not been painted yet, so the person has scrolled nowhere.
};

}  // namespace tavrene::ui
