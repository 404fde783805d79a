#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <array>

#include "app/Operator.h"

class QHBoxLayout;

namespace tavrene::ui {

/// A label on one line that shortens what it shows, not what it holds, when it is too narrow; the whole text
/// is its tool tip then.
class PanelLabel final : public QLabel {
  public:
    explicit PanelLabel(const QString& name);
    void ShowText(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The status bar: four panels, named by their keys, and the progress bar. What is set can be read at once,
/// also while a long operation keeps the window busy.
class StatusPanels final : public QStatusBar {
  public:
    explicit StatusPanels(QWidget* parent);

    void SetPanel(app::Panel panel, const QString& text);
    void SetProgressRange(int last);
    void SetProgress(int value);

  private:
    void AddPanel(app::Panel panel, const char* name, const char* accessibleName, const char* longest);

    std::array<PanelLabel*, 4> panels_{};
    QHBoxLayout* row_;
    QProgressBar* progress_;
};

}  // namespace tavrene::ui
