#pragma once

#include <QRectF>

#include "ui/page/PageTool.h"

namespace tavrene::ui {

class BoxLayer;

/// The pointer tool: selects a box, moves it by its inside and resizes it by its handles, in whole pixels.
class SelectTool final : public PageTool {
  public:
    explicit SelectTool(BoxLayer& layer) : layer_(layer) {}

    void Press(const QPointF& point) override;
    void Drag(const QPointF& point) override;
    void Release(const QPointF& point) override;
    bool Cancel() override;
    QCursor CursorAt(const QPointF& point) const override;

  private:
    unsigned EdgesUnder(const QPointF& point) const;
    QRectF Moved(const QPointF& point) const;
    QCursor CursorOver(int group) const;

    BoxLayer& layer_;
    int dragged_ = 0;  ///< The box that is dragged; 0 for none.
    unsigned edges_ = 0;
    bool hasMoved_ = false;
    QPointF from_;
    QRectF before_;
};

}  // namespace tavrene::ui
