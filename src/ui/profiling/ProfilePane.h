#pragma once

#include <QCheckBox>
#include <QFrame>

#include "ui/profiling/ThumbnailStripView.h"

namespace tavrene::ui {

/// The profile side of the window: the strip of specimens (`ImgThumbnail1`) and the open profile's
/// `chkActive`.
class ProfilePane final : public QFrame {
  public:
    explicit ProfilePane(QWidget* parent);

    ThumbnailStripView& Strip() { return *strip_; }
    QCheckBox& Active() { return *active_; }

  private:
    ThumbnailStripView* strip_;
    QCheckBox* active_;
};

}  // namespace tavrene::ui
