#pragma once

#include <QRectF>

#include "ui/page/PageTool.h"

namespace tavrene::ui {

class BoxLayer;

/// The pointer tool: selects boxes by clicks or by a frame that is drawn around them, moves them by their
/// insides and resizes a single one by its handles, in whole pixels.
class SelectTool final : public PageTool {
  public:
    explicit SelectTool(BoxLayer& layer) : layer_(layer) {}

    void Press(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Drag(const QPointF& point, Qt::KeyboardModifiers keys) override;
    void Release(const QPointF& point, Qt::KeyboardModifiers keys) override;
    bool Cancel() override;
    QCursor CursorAt(const QPointF& point) const override;

  private:
    /// What the button that is down does.
    enum class Deed { None, Move, Resize, MoveTogether, Frame, Copy, Click };

    unsigned EdgesUnder(const QPointF& point) const;
    void PressBox(int group, Qt::KeyboardModifiers keys);
    QRectF Moved(const QPointF& point) const;
    void MoveTogetherTo(const QPointF& point);
    void Finish(Deed deed, const QPointF& point, Qt::KeyboardModifiers keys);
    QCursor CursorOver(int group) const;

    BoxLayer& layer_;
    Deed deed_ = Deed::None;
    int pressed_ = 0;  ///< The box under the button.
    unsigned edges_ = 0;
    bool hasMoved_ = false;
    QPointF from_;
    QPointF way_;  ///< Of the boxes that move together.
    QRectF before_;
};

}  // namespace tavrene::ui
