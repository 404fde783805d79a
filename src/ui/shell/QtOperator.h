#pragma once

#include <QMessageBox>

#include "app/Operator.h"
#include "ui/shell/FileReports.h"
#include "ui/shell/StatusPanels.h"

namespace tavrene::ui {

/// The person at the window: message boxes over it, its status bar, and the box of file messages beside it.
class QtOperator final : public app::Operator {
  public:
    /// Both belong to the window and must outlive the object.
    QtOperator(QWidget& window, StatusPanels& panels);

    void ShowMessage(std::string_view title, std::string_view text) override;
    void ReportFile(std::string_view fileName, std::string_view text) override;
    app::Answer AskYesNo(std::string_view text, app::Answer preset) override;
    app::Answer AskYesNoCancel(std::string_view text, app::Answer preset) override;
    void SetPanel(app::Panel panel, std::string_view text) override;
    void SetProgressRange(int last) override;
    void SetProgress(int value) override;
    void RunPendingEvents() override;

  private:
    app::Answer Ask(std::string_view text, QMessageBox::StandardButtons buttons, app::Answer preset);

    QWidget& window_;
    StatusPanels& panels_;
    FileReports* reports_;
};

}  // namespace tavrene::ui
