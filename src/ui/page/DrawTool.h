#pragma once

#include <QRectF>

#include "ui/page/PageTool.h"

namespace tavrene::ui {

class BoxLayer;

/// Draws new boxes, on whole pixels. A click that draws nothing selects the box under it.
class DrawTool final : public PageTool {
  public:
    explicit DrawTool(BoxLayer& layer) : layer_(layer) {}

    void Press(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Drag(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Release(const QPointF& point, Qt::KeyboardModifiers keys) override;
    bool Cancel() override;
    QCursor CursorAt(const QPointF& point) const override;

  private:
    QRectF Drawn(const QPointF& point) const;

    BoxLayer& layer_;
    bool isDrawing_ = false;
    QPointF from_;
};

}  // namespace tavrene::ui
