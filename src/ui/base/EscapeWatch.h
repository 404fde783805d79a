#pragma once

#include <QObject>

namespace tavrene::ui {

/// While it lives, the person can do nothing but press Escape, which it notes: for a computation that takes
/// pending events in order to be stopped, and that nothing else may disturb.
class EscapeWatch final : public QObject {
  public:
    EscapeWatch();

    bool WasPressed() const { return wasPressed_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool wasPressed_ = false;
};

}  // namespace tavrene::ui
