#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace tavrene::ui {

/// While it lives, the person can do nothing but press Escape, which it notes: for a computation that takes
/// pending events in order to be stopped, and that nothing else may disturb. Dialogs that open meanwhile are
/// answered as ever.
class EscapeWatch final : public QObject {
  public:
    EscapeWatch();

    bool WasPressed() const { return wasPressed_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPointer<QWidget> below_;  ///< The dialog that the work was begun in, if any.
    bool wasPressed_ = false;
};

/// Calls `work` under the busy pointer while the person can do nothing but stop it; what it is handed tells
/// whether it is to go on.
void WorkUndisturbed(const std::function<void(const std::function<bool()>& goesOn)>& work);

}  // namespace tavrene::ui
