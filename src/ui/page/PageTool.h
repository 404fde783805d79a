#pragma once

#include <QCursor>
#include <QPointF>

namespace tavrene::ui {

/// A hand trembles by so much during a click, in pixels of the screen: what is less is no drag.
inline constexpr double kTremble = 3;

/// What the left mouse button does on the page. Points are in the page frame, image pixels and parts of them.
class PageTool {
  public:
    PageTool() = default;
    virtual ~PageTool() = default;
    PageTool(const PageTool&) = delete;
    PageTool& operator=(const PageTool&) = delete;

    // `keys` are those that are held meanwhile.
    virtual void Press(const QPointF& point, Qt::KeyboardModifiers keys) = 0;
    virtual void Drag(const QPointF& point, Qt::KeyboardModifiers keys) = 0;
    virtual void Release(const QPointF& point, Qt::KeyboardModifiers keys) = 0;

    /// Gives up a drag as if it had never begun; false when none goes on.
    virtual bool Cancel() = 0;

    /// What the pointer looks like over that point while no button is down.
    virtual QCursor CursorAt(const QPointF& point) const = 0;
};

}  // namespace tavrene::ui
