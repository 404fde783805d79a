#pragma once

#include <QDialog>
#include <vector>

#include "ui/commands/ManualText.h"

class QListWidget;
class QTextBrowser;

namespace tavrene::ui {

/// The manual beside the window: its pages as a list, and the one that is read. It stops nothing.
class HelpWindow final : public QDialog {
  public:
    explicit HelpWindow(QWidget* window);

    /// Opens the page about what is done in a mode.
    void ShowFor(commands::Mode mode);

    /// False when it was closed already.
    bool Close() { return isVisible() && close(); }

  private:
    void Follow(const QString& address);
    void ShowPage(int number);

    std::vector<commands::ManualPage> pages_;
    QListWidget* contents_;
    QTextBrowser* text_;
};

}  // namespace tavrene::ui
