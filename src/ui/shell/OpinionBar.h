#pragma once

#include <QFrame>
#include <functional>
#include <string>

class QLabel;
class QPushButton;

namespace tavrene::ui {

/// A strip above the page that tells what the second opinion on a run has come to; hidden while there is
/// nothing to tell.
class OpinionBar final : public QFrame {
  public:
    explicit OpinionBar(QWidget* parent);

    /// `readAgain` is called by the button.
    void SetListener(std::function<void()> readAgain) { readAgain_ = std::move(readAgain); }

    /// Shows the text; an empty one hides the strip. `canReadAgain` offers the button.
    void Show(const std::string& text, bool canReadAgain);

  private:
    QLabel* text_;
    QPushButton* again_;
    std::function<void()> readAgain_;
};

}  // namespace tavrene::ui
