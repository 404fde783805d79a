#pragma once

#include <QComboBox>

namespace tavrene::ui {

/// A choice that is made from its opened list alone: a wheel or a key that runs through the entries would
/// have the work behind each of them done on the way.
class PopupChoice : public QComboBox {
  public:
    explicit PopupChoice(QWidget* parent) : QComboBox(parent) {}

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tavrene::ui
