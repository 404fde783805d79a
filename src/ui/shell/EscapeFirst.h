#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

namespace tavrene::ui {

/// Gives the Escape key to what lies over a window before anything in the window has it.
class EscapeFirst final : public QObject {
  public:
    /// `close` closes the topmost of these and tells whether there was one. Lives as long as `window`.
    EscapeFirst(QWidget& window, std::function<bool()> close);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
    std::function<bool()> close_;
};

}  // namespace tavrene::ui
