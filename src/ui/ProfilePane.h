#pragma once

#include <QCheckBox>
#include <QFrame>

namespace tavrene::ui {

/// The profile side of the window: the strip of specimens (`ImgThumbnail1`) and the open profile's
/// `chkActive`.
class ProfilePane final : public QFrame {
  public:
    explicit ProfilePane(QWidget* parent);
};

}  // namespace tavrene::ui
