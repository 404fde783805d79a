#pragma once

#include <QSpinBox>

#include "ui/page/ImageView.h"

namespace tavrene::ui {

/// The zoom of the page in percent, shown and typed (`ZoomPercent`). Its arrows and the arrow keys take the
/// steps of the zoom commands.
class ZoomBox final : public QSpinBox {
  public:
    ZoomBox();

    /// Shows and sets the zoom of a view, which must outlive the box.
    void Connect(ImageView& view);

    void stepBy(int steps) override;

  private:
    ImageView* view_ = nullptr;
};

}  // namespace tavrene::ui
