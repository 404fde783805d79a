#pragma once

#include <QWidget>

#include "app/FileDialogs.h"
#include "app/Files.h"

namespace tavrene::ui {

/// The file dialogs of the window. They are the toolkit's own on every desktop.
class QtFileDialogs final : public app::FileDialogs {
  public:
    /// Both must outlive the object.
    QtFileDialogs(QWidget& window, const app::Files& files) : window_(window), files_(files) {}

    std::optional<std::string> AskSaveFile(const app::FileQuestion& question) override;
    std::optional<std::string> AskOpenFile(const app::FileQuestion& question) override;
    std::optional<std::string> AskFolder(const std::string& title, const std::string& startFolder) override;

  private:
    QWidget& window_;
    const app::Files& files_;
};

}  // namespace tavrene::ui
