#pragma once

#include <QRectF>

#include "ui/page/PageTool.h"

namespace tavrene::ui {

class BoxLayer;

/// Draws rectangles on whole pixels; what they are good for, the tools say that are made of it.
class RectTool : public PageTool {
  public:
    explicit RectTool(BoxLayer& layer) : layer_(layer) {}

    void Press(const QPointF& point, Qt::KeyboardModifiers keys) final;
    void Drag(const QPointF& point, Qt::KeyboardModifiers keys) final;
    void Release(const QPointF& point, Qt::KeyboardModifiers keys) final;
    bool Cancel() override;
    QCursor CursorAt(const QPointF& point) const final;

  protected:
    /// The rectangle from where the button went down.
    QRectF Drawn(const QPointF& point) const;

    /// Too small to have been meant as a rectangle.
    bool IsClick(const QRectF& drawn) const;

    BoxLayer& layer_;

  private:
    /// What is shown while the pointer is there, and what the button means that is let go there.
    virtual QRectF Shown(const QPointF& point) const = 0;
    virtual void Finish(const QPointF& point) = 0;

    bool isDrawing_ = false;
    QPointF from_;
};

}  // namespace tavrene::ui
