#pragma once

#include <QApplication>
#include <QWidget>
#include <memory>
#include <stdexcept>
#include <string>

#include "FormPage.h"
#include "profiles/ProfileRecord.h"
#include "ui/settings/QtSettingsStore.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::bench {

/// The control of that object name.
template <typename Control>
Control& Find(const QWidget& window, const char* name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

/// The real window over a working folder (without a trailing separator), which exists.
class Window {
  public:
    explicit Window(const std::string& folder);

    template <typename Control>
    Control& Get(const char* name) const {
        return Find<Control>(*window_, name);
    }

  private:
    app::DiskFiles files_;
    app::SystemClock clock_;
    ui::QtSettingsStore store_;
    std::unique_ptr<ui::MainWindow> window_;
};

/// Writes the profile "Form" with these boxes, on the form page.
void WriteProfile(const app::WorkingFolders& folders, const std::vector<profiles::OmrBox>& boxes);

}  // namespace tavrene::bench
