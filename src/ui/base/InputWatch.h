#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace tavrene::ui {

/// Knows how long the person has done nothing: typed, clicked or scrolled. For work that is to wait until
/// nobody waits for it.
class InputWatch final : public QObject {
  public:
    InputWatch();

    /// Milliseconds that are left until it has been quiet for so many; 0 when it has.
    int LeftOf(int quiet) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QElapsedTimer last_;
};

}  // namespace tavrene::ui
