#pragma once

#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "review/UnreadPages.h"
#include "ui/commands/CommandTable.h"
#include "ui/lists/ReasonList.h"

class QPushButton;

namespace tavrene::ui {

/// The images that no form belongs to, each with the reason, and what can be done with them. A click on a
/// line or Enter shows its picture.
class UnreadPane final : public QWidget {
  public:
    explicit UnreadPane(QWidget* parent);

    ReasonList& List() { return *list_; }

    /// `pressed` is told the command of a button.
    void SetListener(std::function<void(commands::Command)> pressed) { pressed_ = std::move(pressed); }

    void Show(const std::vector<review::UnreadPage>& pages);

    /// Enables the buttons whose commands are offered.
    void Update(const std::function<bool(commands::Command)>& offers);

  private:
    ReasonList* list_;
    std::vector<std::pair<commands::Command, QPushButton*>> buttons_;
    std::function<void(commands::Command)> pressed_;
};

}  // namespace tavrene::ui
