#include "ui/reviewing/ReviewMarks.h"

namespace tavrene::ui {

void ReviewMarks::SetActive(bool active) {
    if (active == active_)
        return;
    active_ = active;
    view_.UseTool(active ? this : nullptr);
}

void ReviewMarks::Release(const QPointF& point, Qt::KeyboardModifiers) {
    const int group = std::exchange(pressed_, 0);
    if (group != 0 && group == GroupAt(point) && clicked_)
        clicked_(group);
}

QCursor ReviewMarks::CursorAt(const QPointF& point) const {
    return GroupAt(point) == 0 ? Qt::ArrowCursor : Qt::PointingHandCursor;
}

}  // namespace tavrene::ui
