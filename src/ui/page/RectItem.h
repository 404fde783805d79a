#pragma once

#include <QGraphicsItem>

#include "imaging/PageRects.h"

namespace tavrene::ui {

/// One rectangle over the page, in the group of its box's number. Colours and line styles stay apart for
/// colour-blind eyes, and a light seam keeps them visible on black ink; lines keep their width at every zoom.
class RectItem final : public QGraphicsItem {
  public:
    /// `rect` in the page frame, image pixels.
    RectItem(int group, const imaging::PageRect& rect, imaging::RectStyle style);

    int Group() const { return group_; }

    /// Page frame, image pixels.
    QRectF Rect() const { return rect_; }
    void SetRect(const imaging::PageRect& rect);
    void SetStyle(imaging::RectStyle style);

    /// Puts a frame around it, in which it stands out from the others.
    void SetEmphasised(bool emphasised);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    int group_;
    QRectF rect_;
    imaging::RectStyle style_;
    bool emphasised_ = false;
};

}  // namespace tavrene::ui
