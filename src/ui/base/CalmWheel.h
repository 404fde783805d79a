#pragma once

#include <QObject>

class QWidget;

namespace tavrene::ui {

/// A wheel that turns over a number or a choice changes it only while that has the focus: who scrolls past
/// would otherwise change it unnoticed. Belongs to the widget.
class CalmWheel final : public QObject {
  public:
    explicit CalmWheel(QWidget& widget);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tavrene::ui
