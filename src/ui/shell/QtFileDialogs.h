#pragma once

#include <QWidget>

#include "app/FileDialogs.h"

namespace tavrene::ui {

/// The file dialogs of the window. They are the toolkit's own on every desktop.
class QtFileDialogs final : public app::FileDialogs {
  public:
    /// The window must outlive the object.
    explicit QtFileDialogs(QWidget& window) : window_(window) {}

    std::optional<std::string> AskSaveFile(const app::FileQuestion& question) override;
    std::optional<std::string> AskOpenFile(const app::FileQuestion& question) override;
    std::optional<std::string> AskFolder(const std::string& title, const std::string& startFolder) override;

  private:
    QWidget& window_;
};

}  // namespace tavrene::ui
