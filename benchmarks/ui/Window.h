#pragma once

#include <QApplication>
#include <QWidget>
#include <memory>
#include <string>

#include "FormPage.h"
#include "driving/Controls.h"
#include "profiles/ProfileRecord.h"
#include "ui/settings/QtSettingsStore.h"
#include "ui/shell/MainWindow.h"

namespace tavrene::bench {

/// The real window over a working folder (without a trailing separator), which exists.
class Window {
  public:
    explicit Window(const std::string& folder);

    template <typename Control>
    Control& Get(const char* name) const {
        return driving::Find<Control>(*window_, name);
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
