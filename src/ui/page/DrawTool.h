#pragma once

#include "ui/page/RectTool.h"

namespace tavrene::ui {

/// Draws new boxes. A click that draws nothing selects the box under it.
class DrawTool final : public RectTool {
  public:
    using RectTool::RectTool;

  private:
    QRectF Shown(const QPointF& point) const override { return Drawn(point); }
    void Finish(const QPointF& point) override;
};

}  // namespace tavrene::ui
