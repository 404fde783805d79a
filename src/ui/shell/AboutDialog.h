#pragma once

#include <QDialog>

namespace tavrene::ui {

/// The about box `frmAbout`: name, version, licences, and a button for the desktop's own tool that tells
/// about the machine, where there is one.
class AboutDialog final : public QDialog {
  public:
    explicit AboutDialog(QWidget* parent);
};

}  // namespace tavrene::ui
