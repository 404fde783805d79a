#pragma once

#include <QGraphicsView>

#include "app/Files.h"
#include "imaging/PageRects.h"
#include "imaging/PageView.h"
#include "ui/PageItem.h"

namespace tavrene::ui {

/// The image view `ImgEdit1`: one page and the rectangles over it. The scene is the page frame in image
/// pixels.
class ImageView final : public QGraphicsView, public imaging::PageView, public imaging::PageRects {
  public:
    /// `files` must outlive the view.
    ImageView(const app::Files& files, QWidget* parent);

    /// Replaces the page; a page of another size is shown from its top left corner. Rectangles stay, because
    /// a form's boxes are drawn before its page is shown.
    void ShowFile(const std::string& path) override;

    /// Takes the page and all rectangles away.
    void Clear() override;
    double Zoom() const override { return zoom_; }
    void SetZoom(double percent) override;
    void Refresh() override;

    void DrawRect(int group, const imaging::PageRect& rect, imaging::RectStyle style) override;
    void ClearRects() override;

    /// Zooms in and out by the steps of the zoom commands, and to what fits; nothing without a page.
    void ZoomIn();
    void ZoomOut();
    void ZoomToOriginal();
    void FitPage();
    void FitWidth();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool HasPage() const { return !page_->Size().isEmpty(); }
    void SetPage(const QImage& image);

    const app::Files& files_;
    PageItem* page_;
    QGraphicsItem* rects_;  ///< Parent of all rectangles, so that they go in one step.
    double zoom_ = 100;
};

}  // namespace tavrene::ui
