#pragma once

#include <functional>

#include "ui/page/RectTool.h"

namespace tavrene::ui {

/// Asks for the corners of a grid: its first box is drawn at the upper left, its last one at the lower right
/// drawn as well, or clicked at its middle.
class GridTool final : public RectTool {
  public:
    using RectTool::RectTool;

    /// Begins anew; `done` is told of both boxes, in the page frame.
    void Start(std::function<void(const QRectF& first, const QRectF& last)> done);

    bool Cancel() override;

  private:
    QRectF Box(const QPointF& point) const;
    QRectF Shown(const QPointF& point) const override;
    void Finish(const QPointF& point) override;

    std::function<void(const QRectF&, const QRectF&)> done_;
    bool isActive_ = false;
    QRectF first_;
};

}  // namespace tavrene::ui
