#pragma once

#include <QFocusFrame>
#include <QObject>
#include <QPointer>

namespace tavrene::ui {

/// A ring around whatever has the keyboard, from the first key on that is pressed until the mouse takes over:
/// lists, the page and the buttons of a toolbar look the same with and without it otherwise. What it looks
/// like is the style's business.
class FocusRing final : public QObject {
  public:
    explicit FocusRing(QObject* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void SetByKeys(bool byKeys);
    void Follow();

    bool isByKeys_ = false;
    QPointer<QFocusFrame> frame_;  ///< Goes with the window that it is in.
};

}  // namespace tavrene::ui
