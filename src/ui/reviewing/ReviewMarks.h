#pragma once

#include <functional>
#include <utility>

#include "ui/page/ImageView.h"
#include "ui/page/PageTool.h"

namespace tavrene::ui {

/// The pointer while a form is under review: a click on a drawn box is told.
class ReviewMarks final : public PageTool {
  public:
    /// `view` must outlive the object.
    explicit ReviewMarks(ImageView& view) : view_(view) {}

    /// `clicked` is told the group, once for each press and release on the same box.
    void SetListener(std::function<void(int group)> clicked) { clicked_ = std::move(clicked); }

    /// Whether clicks are taken.
    void SetActive(bool active);

    void Press(const QPointF& point, Qt::KeyboardModifiers) override { pressed_ = GroupAt(point); }
    void Drag(const QPointF&, Qt::KeyboardModifiers) override {}
    void Release(const QPointF& point, Qt::KeyboardModifiers) override;
    bool Cancel() override { return std::exchange(pressed_, 0) != 0; }
    QCursor CursorAt(const QPointF& point) const override;

  private:
    int GroupAt(const QPointF& point) const { return view_.Boxes().BoxAt(point); }

    ImageView& view_;
    std::function<void(int)> clicked_;
    bool active_ = false;
    int pressed_ = 0;  ///< The group under the pressed button; 0 for none.
};

}  // namespace tavrene::ui
