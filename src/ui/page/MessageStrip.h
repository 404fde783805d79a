#pragma once

#include <QFrame>
#include <functional>
#include <span>

#include "app/Operator.h"

class QVBoxLayout;

namespace tavrene::ui {

/// The strip `MessageStrip` over the page: notices in whole sentences, each with a button where something can
/// be done about it. Not to be seen while there are none.
class MessageStrip final : public QFrame {
  public:
    explicit MessageStrip(QWidget* parent);

    /// `run` is given what a button does.
    void SetRunner(std::function<void(const std::function<void()>& act)> run) { run_ = std::move(run); }

    /// Shows these notices instead of the ones before them.
    void Show(std::span<const app::Notice> notices);

  private:
    void Add(const app::Notice& notice);

    std::function<void(const std::function<void()>&)> run_;
    QVBoxLayout* lines_;
};

}  // namespace tavrene::ui
