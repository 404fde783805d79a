#pragma once

#include <QRectF>
#include <functional>

#include "ui/page/PageTool.h"

namespace tavrene::ui {

class BoxLayer;

/// Asks for the corners of a grid: its first box is drawn at the upper left, its last one at the lower right
/// drawn as well, or clicked at its middle.
class GridTool final : public PageTool {
  public:
    explicit GridTool(BoxLayer& layer) : layer_(layer) {}

    /// Begins anew; `done` is told of both boxes, in the page frame.
    void Start(std::function<void(const QRectF& first, const QRectF& last)> done);

    void Press(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Drag(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Release(const QPointF& point, Qt::KeyboardModifiers keys) override;
    bool Cancel() override;
    QCursor CursorAt(const QPointF& point) const override;

  private:
    QRectF Drawn(const QPointF& point) const;

    BoxLayer& layer_;
    std::function<void(const QRectF&, const QRectF&)> done_;
    bool isActive_ = false;
    bool isDrawing_ = false;
    QPointF from_;
    QRectF first_;
};

}  // namespace tavrene::ui
