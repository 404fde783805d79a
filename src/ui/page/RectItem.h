#pragma once

#include <QGraphicsItem>

#include "imaging/PageScreen.h"

namespace tavrene::ui {

/// One rectangle over the page. Colours and line styles stay apart for
/// colour-blind eyes, and a light seam keeps them visible on black ink; lines keep their width at every zoom.
class RectItem final : public QGraphicsItem {
  public:
    explicit RectItem(QGraphicsItem* parent) : QGraphicsItem(parent) {}

    /// In the page frame, image pixels.
    void SetRect(const imaging::PageRect& rect);
    void SetStyle(imaging::RectStyle style);

    /// Puts a frame around it, in which it stands out from the others.
    void SetEmphasised(bool emphasised);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    QRectF rect_;
    imaging::RectStyle style_ = imaging::RectStyle::Editable;
    bool emphasised_ = false;
};

}  // namespace tavrene::ui
