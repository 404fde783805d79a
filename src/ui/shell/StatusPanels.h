#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <array>

#include "app/Operator.h"
#include "ui/shell/ZoomBox.h"

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

/// The status bar: four panels, named by their keys, the progress bar, and the zoom. What is set can be read
/// at once, also while a long operation keeps the window busy.
class StatusPanels final : public QStatusBar {
  public:
    explicit StatusPanels(QWidget* parent);

    void SetPanel(app::Panel panel, const QString& text);
    void SetProgressRange(int last);
    void SetProgress(int value);

    /// While a run goes on the panel `Progress` counts its files and says how long the rest will take.
    void CountFiles(bool counts);

    ZoomBox& Zoom() { return *zoom_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void AddPanel(app::Panel panel, const char* name, const QString& accessibleName, const char* longest);

    void Show(app::Panel panel, bool shown);
    void FitPanels();

    std::array<PanelLabel*, 4> panels_{};
    std::array<int, 4> widths_{};     ///< That show the longest text whole; 0 takes what the others leave.
    std::array<QFrame*, 4> lines_{};  ///< Behind each panel.
    QHBoxLayout* row_;
    QProgressBar* progress_;
    ZoomBox* zoom_;
    bool countsFiles_ = false;
    QElapsedTimer since_;  ///< The range was set.
};

}  // namespace tavrene::ui
