#include "ui/reviewing/ReviewMarks.h"

namespace tavrene::ui {
namespace {

// How far beside a box a click still means it, in pixels of the screen.
constexpr double kNearby = 3;

// Room that is left around a box when it is scrolled to, in pixels of the screen.
constexpr int kScrollMargin = 60;

}  // namespace

void ReviewMarks::SetActive(bool active) {
    if (active == active_)
        return;
    active_ = active;
    view_.SetTool(active ? this : nullptr);
}

void ReviewMarks::ChangeRects(int group, imaging::RectStyle style) {
    for (RectItem* const item : view_.Rects())
        if (item->Group() == group)
            item->SetStyle(style);
}

void ReviewMarks::EmphasiseRects(int group) {
    QRectF place;
    for (RectItem* const item : view_.Rects()) {
        const bool isMeant = item->Group() == group;
        item->SetEmphasised(isMeant);
        if (isMeant)
            place |= item->Rect();
    }
    if (!place.isNull())
        view_.ensureVisible(place, kScrollMargin, kScrollMargin);
}

void ReviewMarks::Release(const QPointF& point) {
    const int group = std::exchange(pressed_, 0);
    if (group != 0 && group == GroupAt(point) && clicked_)
        clicked_(group);
}

QCursor ReviewMarks::CursorAt(const QPointF& point) const {
    return GroupAt(point) == 0 ? Qt::ArrowCursor : Qt::PointingHandCursor;
}

// The smallest box where several lie over each other.
int ReviewMarks::GroupAt(const QPointF& point) const {
    const double nearby = kNearby * 100 / view_.Zoom();
    const RectItem* found = nullptr;
    const auto area = [](const RectItem& item) { return item.Rect().width() * item.Rect().height(); };
    for (const RectItem* const item : view_.Rects()) {
        const bool isHit = item->Rect().adjusted(-nearby, -nearby, nearby, nearby).contains(point);
        if (isHit && (found == nullptr || area(*item) < area(*found)))
            found = item;
    }
    return found == nullptr ? 0 : found->Group();
}

}  // namespace tavrene::ui
